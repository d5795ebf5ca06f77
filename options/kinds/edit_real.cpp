// The row with a real number.
#include "options/kinds/all_kinds.h"
#include "options/kinds/number_kind.h"
#include "options/pages/rows/double_spin_box.h"
#include "options/store/option_values.h"

namespace {

class EditRealKind final : public NumberKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const override;
    void write(OptionDialog& options, TreeItem* item) const override;
};

// The item keeps the value as it was read, also one that the box clamps or rounds, until the user edits it.
void EditRealKind::build(OptionDialog& options, TreeItem* item, IParam* node, int) const {
    const double value = realOrDefault(node, options.parentNode(item));
    item->buttonMask = kMaskModify;
    item->numberValue = value;
    tagRSIZE limits{0.0, 2147483647.0};
    readValue(node, "Limits", &limits);
    double step = 1.0;
    readValue(node, "Step", &step);
    auto* spinBox = new DoubleSpinBox(item, options.tree, nullptr);
    nameEditor(spinBox, item);
    spinBox->setRange(limits.cx, limits.cy);
    spinBox->setSingleStep(step);
    spinBox->setValue(value);
    showUnit(spinBox, item);
    options.makeRow(1, item, spinBox, false, 1);
    QObject::connect(
        spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), spinBox,
        [item](double changed) { item->numberValue = changed; }, Qt::DirectConnection);
}

void EditRealKind::write(OptionDialog& options, TreeItem* item) const {
    const RowNodes row = nodesOf(options, item);
    writeDoubleOption(row.node, row.parent, item->numberValue);
}

} // namespace

const RowKind& editRealKind() {
    static const EditRealKind kind;
    return kind;
}
