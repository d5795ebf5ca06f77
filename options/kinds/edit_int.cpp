// The row with a whole number.
#include "options/kinds/all_kinds.h"
#include "options/kinds/number_kind.h"
#include "options/pages/rows/int_spin_box.h"
#include "options/store/option_values.h"

namespace {

class EditIntKind final : public NumberKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const override;
    void write(OptionDialog& options, TreeItem* item) const override;
};

// The item keeps the value as it was read, also one that the box clamps or rounds, until the user edits it.
void EditIntKind::build(OptionDialog& options, TreeItem* item, IParam* node, int) const {
    const int value = intOrDefault(node, options.parentNode(item));
    item->buttonMask = kMaskModify;
    item->numberValue = value;
    tagSIZE limits{0, 0x7FFFFFFF};
    readValue(node, "Limits", &limits);
    int step = 1;
    readValue(node, "Step", &step);
    auto* spinBox = new IntSpinBox(item, options.tree, nullptr);
    nameEditor(spinBox, item);
    spinBox->setMinimum(limits.cx);
    spinBox->setMaximum(limits.cy);
    spinBox->setSingleStep(step);
    spinBox->setValue(value);
    showUnit(spinBox, item);
    options.makeRow(1, item, spinBox, false, 1);
    QObject::connect(
        spinBox, QOverload<int>::of(&QSpinBox::valueChanged), spinBox,
        [item](int changed) { item->numberValue = changed; }, Qt::DirectConnection);
}

void EditIntKind::write(OptionDialog& options, TreeItem* item) const {
    const RowNodes row = nodesOf(options, item);
    writeIntOption(row.node, row.parent, static_cast<int>(item->numberValue));
}

} // namespace

const RowKind& editIntKind() {
    static const EditIntKind kind;
    return kind;
}
