// The parts that the line edits and the other editors have in common.
#include "options/kinds/editor_parts.h"

#include "host/tool_tip.h"
#include "module/icons/icons.h"
#include "options/kinds/icon_numbers.h"
#include "options/pages/rows/line_edit.h"

#include <QAction>
#include <QTreeWidget>

RowNodes nodesOf(const OptionIndex& options, TreeItem* item) {
    return {options.optionItems.value(item), options.parentNode(item)};
}

void nameEditor(QWidget* editor, const TreeItem* item) {
    editor->setObjectName(QString::fromLocal8Bit(item->nodeName));
}

void addBrowseAction(OptionDialog& options, LineEdit* edit, QAction* action) {
    action->setObjectName(QStringLiteral("browseAction"));
    action->setIcon(treeIcon(kIconFolders));
    edit->addAction(action, QLineEdit::TrailingPosition);
    options.atThemeChange(action, [action] { action->setIcon(treeIcon(kIconFolders)); });
}

void showText(LineEdit* edit, const QString& text) {
    edit->setText(text);
    edit->setToolTip(hostqt::plainToolTip(text));
}

void focusPicked(LineEdit* edit, TreeItem* item) {
    item->treeWidget()->setCurrentItem(item);
    edit->setFocus(Qt::OtherFocusReason);
}

void startEditing(QWidget* editor) {
    if (!editor)
        return;
    editor->setEnabled(true);
    editor->setFocus(Qt::OtherFocusReason);
}
