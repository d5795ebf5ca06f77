// The spin boxes of whole and real numbers.
#include "options/window/preferences.h"

#include "options/kinds/editor_parts.h"
#include "options/pages/rows/double_spin_box.h"
#include "options/pages/rows/int_spin_box.h"
#include "options/store/option_values.h"

namespace {

// The unit behind the first ">" of a row's text, with a doubled percent sign standing for one.
QString unitOf(const QString& text) {
    return text.mid(text.indexOf(QLatin1Char('>')) + 1).replace(QStringLiteral("%%"), QStringLiteral("%"));
}

template <class SpinBox> void showUnit(SpinBox* spinBox, const TreeItem* item) {
    const QString text = item->text(0);
    if (text.contains(QLatin1Char('>')))
        spinBox->setSuffix(unitOf(text));
}

} // namespace

// The item keeps the value as it was read, also one that the box clamps or rounds, until the user edits it.
void Preferences::buildEditInt(TreeItem* item, IParam* node) {
    const int value = intOrDefault(node, parentNode(item));
    item->buttonMask = kMaskModify;
    item->numberValue = value;
    tagSIZE limits{0, 0x7FFFFFFF};
    readValue(node, "Limits", &limits);
    int step = 1;
    readValue(node, "Step", &step);
    auto* spinBox = new IntSpinBox(item, tree, nullptr);
    nameEditor(spinBox, item);
    spinBox->setMinimum(limits.cx);
    spinBox->setMaximum(limits.cy);
    spinBox->setSingleStep(step);
    spinBox->setValue(value);
    showUnit(spinBox, item);
    makeRow(1, item, spinBox, false, 1);
    connect(
        spinBox, QOverload<int>::of(&QSpinBox::valueChanged), spinBox,
        [item](int changed) { item->numberValue = changed; }, Qt::DirectConnection);
}

void Preferences::buildEditReal(TreeItem* item, IParam* node) {
    const double value = realOrDefault(node, parentNode(item));
    item->buttonMask = kMaskModify;
    item->numberValue = value;
    tagRSIZE limits{0.0, 2147483647.0};
    readValue(node, "Limits", &limits);
    double step = 1.0;
    readValue(node, "Step", &step);
    auto* spinBox = new DoubleSpinBox(item, tree, nullptr);
    nameEditor(spinBox, item);
    spinBox->setRange(limits.cx, limits.cy);
    spinBox->setSingleStep(step);
    spinBox->setValue(value);
    showUnit(spinBox, item);
    makeRow(1, item, spinBox, false, 1);
    connect(
        spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), spinBox,
        [item](double changed) { item->numberValue = changed; }, Qt::DirectConnection);
}
