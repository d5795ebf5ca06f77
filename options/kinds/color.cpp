// The row of a colour.
#include "options/kinds/all_kinds.h"
#include "options/kinds/editor_parts.h"
#include "options/kinds/swatch.h"
#include "options/store/option_values.h"

namespace {

class ColorKind final : public SwatchKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int) const override {
        buildSwatch(options, item, colorOrDefault(node, options.parentNode(item)));
    }
    // The colour of the crosshair is written by the rows that steer it.
    void write(OptionDialog& options, TreeItem* item) const override {
        const RowNodes row = nodesOf(options, item);
        if (item->optionId != kIdCursorColor)
            writeColorOption(row.node, row.parent, item->colorValue);
    }
};

} // namespace

const RowKind& colorKind() {
    static const ColorKind kind;
    return kind;
}
