// Steps that the three pages take alike when they make a row, read its text or take it off the tree.
#include "options/pages/rows/page_rows.h"

#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "options/pages/search/searching_line_edit.h"
#include "options/window/preferences.h"

#include <QCheckBox>
#include <QIcon>
#include <QTreeWidget>

QIcon iconOf(const QTreeWidgetItem* item) { return item->data(0, Qt::DecorationRole).value<QIcon>(); }

QString labelText(const Preferences& preferences, TreeItem* item) {
    const QPrefWidget* row = preferences.rowWidgets.value(item);
    return row ? row->label()->text() : QString();
}

QString plainLabelText(const Preferences& preferences, TreeItem* item) {
    QString text = labelText(preferences, item);
    if (preferences.searchEdit) // not yet there while the tree is being built, and neither is any mark
        preferences.searchEdit->removeHighlight(text);
    return text;
}

void takeOffRow(Preferences& preferences, TreeItem* item) {
    preferences.tree->setItemWidget(item, 0, nullptr);
    preferences.forgetItem(item);
}

QCheckBox* makeCheckRow(Preferences& preferences, TreeItem* item, bool checked) {
    auto* check = new QCheckBox;
    check->setChecked(checked);
    preferences.makeRow(0, item, check, false, 1);
    return check;
}
