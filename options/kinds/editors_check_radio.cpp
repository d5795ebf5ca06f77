// The editors that are on or off, and what they do to the rows below and above them.
#include "options/window/preferences.h"

#include "options/kinds/editor_parts.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/page_rows.h"
#include "options/pages/rows/pref_widget.h"
#include "options/store/option_values.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>

namespace {

bool isChecked(IParam* node, int value) {
    int mask = 0;
    return readValue(node, "mask", &mask) ? (value & mask) != 0 : value != 0;
}

void checkStateChanged(Preferences& preferences, TreeItem* item, int checkState) {
    const bool on = checkState == Qt::Checked;
    preferences.setChildrenDisabled(item, !on);
    item->state = on ? 1 : 0;
    preferences.tree->setCurrentItem(item);
}

// Turns off every row of the group, in whichever branch it stands.
void clearGroup(Preferences& preferences, QButtonGroup* group) {
    for (TreeItem* other : preferences.radioButtons.keys()) {
        if (preferences.buttonGroups.value(other->parentItem()) != group)
            continue;
        other->state = 0;
        preferences.setChildrenDisabled(other, true);
    }
}

void radioClicked(Preferences& preferences, TreeItem* item) {
    if (!item)
        return;
    clearGroup(preferences, preferences.buttonGroups.value(item->parentItem()));
    item->state = 1;
    preferences.tree->setCurrentItem(item);
    preferences.setChildrenDisabled(item, false);
    preferences.updateGroupLabel(item, item->parentItem());
    preferences.tree->setCurrentItem(item);
}

} // namespace

void Preferences::buildCheck(TreeItem* item, IParam* node) {
    const bool checked = isChecked(node, intOrDefault(node, parentNode(item)));
    auto* checkBox = new QCheckBox;
    nameEditor(checkBox, item);
    checkBox->setChecked(checked);
    item->state = checkBox->isChecked();
    connect(
        checkBox, &QCheckBox::stateChanged, checkBox,
        [this, item](int checkState) { checkStateChanged(*this, item, checkState); }, Qt::DirectConnection);
    makeRow(0, item, checkBox, false, 1);
}

// A child's own check box isn't asked: checking a row again enables everything below it. That is meant.
void Preferences::setChildrenDisabled(TreeItem* item, bool disable) {
    for (int i = 0; i < item->childCount(); ++i) {
        TreeItem* child = item->childItem(i);
        child->setEnabledFlag(!disable);
        if (QPrefWidget* row = rowWidgets.value(child))
            row->setEnabled(!disable);
        setChildrenDisabled(child, disable);
    }
}

void Preferences::buildRadio(TreeItem* item, IParam* node) {
    int current = 0, value = 0, mask = 0;
    readIntOption(node, parentNode(item),
                  &current); // the node's `Default` isn't consulted here, which is meant
    readValue(node, "Value", &value);
    if (readValue(node, "mask", &mask))
        current &= mask;
    auto* button = new QRadioButton;
    nameEditor(button, item);
    item->state = 0;
    item->numberValue = value;
    connect(
        button, &QRadioButton::clicked, button, [this, item] { radioClicked(*this, item); },
        Qt::DirectConnection);
    makeRow(0, item, button, false, 1);
    radioButtons[item] = button;
    radioLists[item->parentItem()] += button;
    if (value != current)
        return;
    button->setChecked(true);
    item->state = 1;
    updateGroupLabel(item, item->parentItem());
}

// The group shows the selected choice behind its own name. Brackets of the name itself are cut too: meant.
void Preferences::updateGroupLabel(TreeItem* item, TreeItem* parentItem) {
    QLabel* label = rowWidgets.value(parentItem)->label();
    const QString own = plainLabelText(*this, parentItem);
    const QString text = own.left(own.indexOf(QStringLiteral(" ["))) + QStringLiteral(" [") +
                         plainLabelText(*this, item) + QStringLiteral("]");
    label->setText(text);
    label->setToolTip(text);
}
