// The row with a check box: an option that is on or off, or some bits of a number that other rows share.
#include "options/kinds/all_kinds.h"
#include "options/kinds/editor_parts.h"
#include "options/kinds/on_off.h"
#include "options/kinds/row_kind.h"
#include "options/store/option_values.h"

#include <QCheckBox>
#include <QTreeWidget>

namespace {

class CheckKind final : public RowKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const override;
    void write(OptionDialog& options, TreeItem* item) const override;
};

bool isChecked(IParam* node, int value) {
    int mask = 0;
    return readValue(node, "mask", &mask) ? (value & mask) != 0 : value != 0;
}

void checkStateChanged(OptionDialog& options, TreeItem* item, int checkState) {
    const bool on = checkState == Qt::Checked;
    setChildrenDisabled(options, item, !on);
    item->state = on ? 1 : 0;
    options.tree->setCurrentItem(item);
}

void CheckKind::build(OptionDialog& options, TreeItem* item, IParam* node, int) const {
    const bool checked = isChecked(node, intOrDefault(node, options.parentNode(item)));
    auto* checkBox = new QCheckBox;
    nameEditor(checkBox, item);
    checkBox->setChecked(checked);
    item->state = checkBox->isChecked();
    QObject::connect(
        checkBox, &QCheckBox::stateChanged, checkBox,
        [&options, item](int checkState) { checkStateChanged(options, item, checkState); },
        Qt::DirectConnection);
    options.makeRow(0, item, checkBox, false, 1);
}

void CheckKind::write(OptionDialog& options, TreeItem* item) const {
    const RowNodes row = nodesOf(options, item);
    const bool on = item->state == 1;
    int mask = 0;
    if (!readValue(row.node, "mask", &mask)) {
        writeIntOption(row.node, row.parent, on ? 1 : 0);
        return;
    }
    const int current = intOrDefault(row.node, row.parent); // as the row before may just have written it
    writeIntOption(row.node, row.parent, on ? current | mask : current & ~mask);
}

} // namespace

const RowKind& checkKind() {
    static const CheckKind kind;
    return kind;
}
