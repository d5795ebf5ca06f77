// The row with a radio button: one of several values, or some bits of a number that other rows share.
#include "options/kinds/all_kinds.h"
#include "options/kinds/editor_parts.h"
#include "options/kinds/radio_button.h"
#include "options/kinds/row_kind.h"
#include "options/store/option_values.h"

namespace {

class RadioKind final : public RowKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int) const override {
        buildRadioButton(options, item, node);
    }
    void write(OptionDialog& options, TreeItem* item) const override;
};

// With a mask a row that isn't selected clears its own bits, also those that a selected row above it has just
// set. That is meant, and depends on the order of the rows.
void RadioKind::write(OptionDialog& options, TreeItem* item) const {
    const RowNodes row = nodesOf(options, item);
    const bool on = item->state == 1;
    int value = 0, mask = 0;
    readValue(row.node, "Value", &value);
    if (!readValue(row.node, "mask", &mask)) {
        if (on)
            writeIntOption(row.node, row.parent, value);
        return;
    }
    const int current = intOrDefault(row.node, row.parent);
    writeIntOption(row.node, row.parent, on ? current | value : current & ~value);
}

} // namespace

const RowKind& radioKind() {
    static const RadioKind kind;
    return kind;
}
