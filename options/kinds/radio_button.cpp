// Makes radio buttons and keeps one of a group selected, wherever in the tree the group's rows stand.
#include "options/kinds/radio_button.h"

#include "options/kinds/editor_parts.h"
#include "options/kinds/on_off.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/page_rows.h"
#include "options/store/option_values.h"

#include <QButtonGroup>
#include <QDialog>
#include <QRadioButton>
#include <QTreeWidget>

namespace {

// Turns off every row of the group, in whichever branch it stands.
void clearGroup(OptionDialog& options, QButtonGroup* group) {
    for (TreeItem* other : options.radioButtons.keys()) {
        if (options.buttonGroups.value(other->parentItem()) != group)
            continue;
        other->state = 0;
        setChildrenDisabled(options, other, true);
    }
}

void radioClicked(OptionDialog& options, TreeItem* item) {
    if (!item)
        return;
    clearGroup(options, options.buttonGroups.value(item->parentItem()));
    item->state = 1;
    options.tree->setCurrentItem(item);
    setChildrenDisabled(options, item, false);
    updateGroupLabel(options, item, item->parentItem());
    options.tree->setCurrentItem(item);
}

} // namespace

void buildRadioButton(OptionDialog& options, TreeItem* item, IParam* node) {
    int current = 0, value = 0, mask = 0;
    readIntOption(node, options.parentNode(item),
                  &current); // the node's `Default` isn't consulted here, which is meant
    readValue(node, "Value", &value);
    if (readValue(node, "mask", &mask))
        current &= mask;
    auto* button = new QRadioButton;
    nameEditor(button, item);
    item->state = 0;
    item->numberValue = value;
    QObject::connect(
        button, &QRadioButton::clicked, button, [&options, item] { radioClicked(options, item); },
        Qt::DirectConnection);
    options.makeRow(0, item, button, false, 1);
    options.radioButtons[item] = button;
    options.radioLists[item->parentItem()] += button;
    if (value != current)
        return;
    button->setChecked(true);
    item->state = 1;
    updateGroupLabel(options, item, item->parentItem());
}

void updateGroupLabel(OptionDialog& options, TreeItem* item, TreeItem* parentItem) {
    QLabel* label = options.rowWidgets.value(parentItem)->label();
    const QString own = plainLabelText(options, parentItem);
    const QString text = own.left(own.indexOf(QStringLiteral(" ["))) + QStringLiteral(" [") +
                         plainLabelText(options, item) + QStringLiteral("]");
    label->setText(text);
    label->setToolTip(text);
}

void groupRadioButtons(OptionDialog& options) {
    for (auto list = options.radioLists.cbegin(); list != options.radioLists.cend(); ++list) {
        auto* const group = new QButtonGroup(&options.asDialog());
        group->setExclusive(true);
        for (QRadioButton* button : list.value())
            group->addButton(button, -1);
        options.buttonGroups[list.key()] = group;
    }
}
