// Steps that the three pages take alike when they make a row, read its text or take it off the tree.
#include "options/pages/rows/page_rows.h"

#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/option_dialog.h"
#include "options/pages/rows/pref_widget.h"
#include "options/pages/search/searching_line_edit.h"

#include <QCheckBox>
#include <QIcon>
#include <QTreeWidget>

QIcon iconOf(const QTreeWidgetItem* item) { return item->data(0, Qt::DecorationRole).value<QIcon>(); }

QString labelText(const OptionDialog& options, TreeItem* item) {
    const QPrefWidget* row = options.rowWidgets.value(item);
    return row ? row->label()->text() : QString();
}

QString plainLabelText(const OptionDialog& options, TreeItem* item) {
    QString text = labelText(options, item);
    if (options.searchEdit) // not yet there while the tree is being built, and neither is any mark
        options.searchEdit->removeHighlight(text);
    return text;
}

void takeOffRow(OptionDialog& options, TreeItem* item) {
    options.tree->setItemWidget(item, 0, nullptr);
    options.forgetItem(item);
}

QCheckBox* makeCheckRow(OptionDialog& options, TreeItem* item, bool checked) {
    auto* check = new QCheckBox;
    check->setChecked(checked);
    options.makeRow(0, item, check, false, 1);
    return check;
}

void moveRow(OptionDialog& options, TreeItem* item, int step, QWidget* editor) {
    const QString text = plainLabelText(options, item);
    TreeItem* const parent = item->parentItem();
    const int index = parent->indexOfChild(item);
    options.forgetWidgets(item);
    parent->takeChild(index);
    parent->insertChild(index + step, item);
    item->setText(0, text);
    options.makeRow(0, item, editor, false, 1);
    options.tree->setCurrentItem(item);
    options.tree->setFocus(Qt::OtherFocusReason);
}
