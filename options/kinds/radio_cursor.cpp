// The rows that choose how the crosshair is coloured. They steer the row of its colour, which does not write
// itself.
#include "options/kinds/all_kinds.h"
#include "options/kinds/cursor_flag.h"
#include "options/kinds/editor_parts.h"
#include "options/kinds/radio_button.h"
#include "options/kinds/row_kind.h"
#include "options/store/option_values.h"

namespace {

class RadioCursorKind final : public RowKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int) const override {
        buildRadioButton(options, item, node);
    }
    void write(OptionDialog& options, TreeItem* item) const override;
    bool isWrittenDisabled() const override { return true; } // meant
};

// The high byte of the stored colour and the flag carry the choice.
void writeChoice(const OptionDialog& options, const RowNodes& row, int choice) {
    writeIntOption(row.node, row.parent, choice);
    TreeItem* colorItem = options.cursorColorItem;
    if (!colorItem) // data without the colour row has nothing to steer
        return;
    std::uint32_t color = colorItem->colorValue;
    if (choice == 0)
        color |= 0xFF000000;
    else if (choice == 1)
        color &= 0xFFFFFF;
    if (choice >= 0 && choice <= 2)
        writeCursorFlag(options, choice == 2);
    const RowNodes colorRow = nodesOf(options, colorItem);
    writeColorOption(colorRow.node, colorRow.parent, color);
}

void RadioCursorKind::write(OptionDialog& options, TreeItem* item) const {
    if (item->state == 1)
        writeChoice(options, nodesOf(options, item), static_cast<int>(item->numberValue));
}

} // namespace

const RowKind& radioCursorKind() {
    static const RadioCursorKind kind;
    return kind;
}
