// The row of a colour of the palette, which the store knows by its index.
#include "options/kinds/all_kinds.h"
#include "options/kinds/editor_parts.h"
#include "options/kinds/swatch.h"
#include "options/store/option_values.h"
#include "sdk/rx/color.h"

namespace {

class AcColorKind final : public SwatchKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const override;
    void write(OptionDialog& options, TreeItem* item) const override;
};

// The low three bytes with red and blue swapped: 0x00RRGGBB to 0x00BBGGRR.
std::uint32_t swapped(std::uint32_t rgb) { return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 0xFF); }

void AcColorKind::build(OptionDialog& options, TreeItem* item, IParam* node, int) const {
    const int index = intOrDefault(node, options.parentNode(item));
    buildSwatch(options, item, swapped(OdCmEntityColor::lookUpRGB(static_cast<std::uint8_t>(index & 255))));
}

void AcColorKind::write(OptionDialog& options, TreeItem* item) const {
    const RowNodes row = nodesOf(options, item);
    const std::uint32_t color = item->colorValue;
    writePaletteOption(row.node, row.parent,
                       OdCmEntityColor::lookUpACI(static_cast<std::uint8_t>(color),
                                                  static_cast<std::uint8_t>(color >> 8),
                                                  static_cast<std::uint8_t>(color >> 16)));
}

} // namespace

const RowKind& acColorKind() {
    static const AcColorKind kind;
    return kind;
}
