#include "options/window/option_keys.h"

#include "options/kinds/row_kind.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "options/pages/search/collapse_widget.h"
#include "options/pages/search/searching_line_edit.h"
#include "options/tree/mask_rules.h"
#include "options/window/preferences.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>

namespace {

bool isEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

bool isPlain(const QKeyEvent& event) { return !(event.modifiers() & ~Qt::KeypadModifier); }

// What Escape gives back. Boxes and radio buttons have no value that is being typed.
const char* valueProperty(const QWidget* editor) {
    if (qobject_cast<const QLineEdit*>(editor))
        return "text";
    if (qobject_cast<const QAbstractSpinBox*>(editor))
        return "value";
    return qobject_cast<const QComboBox*>(editor) ? "currentIndex" : nullptr;
}

bool comesFromOutside(const QFocusEvent& event) {
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::ActiveWindowFocusReason;
}

} // namespace

OptionKeys::OptionKeys(Preferences& watched) : QObject(&watched), dialog(watched) {
    dialog.tree->installEventFilter(this);
}

void OptionKeys::watch(QWidget* editor) {
    editor->setFocusPolicy(Qt::ClickFocus);
    editor->installEventFilter(this);
}

void OptionKeys::orderTabs() const {
    QWidget* former = dialog.tree;
    for (QWidget* next : std::initializer_list<QWidget*>{
             dialog.profileCombo, dialog.profileButton, dialog.addButton, dialog.deleteButton,
             dialog.upButton, dialog.downButton, dialog.description, dialog.searchEdit,
             dialog.collapseWidget->collapseButton, dialog.collapseWidget->expandButton, dialog.applyButton,
             dialog.okButton, dialog.cancelButton, dialog.helpButton}) {
        QWidget::setTabOrder(former, next);
        former = next;
    }
}

bool OptionKeys::eventFilter(QObject* watched, QEvent* event) {
    auto* const editor = static_cast<QWidget*>(watched);
    const bool isTree = editor == dialog.tree;
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        return isTree ? onTreeKey(key) : onEditorKey(editor, key);
    }
    if (event->type() == QEvent::ContextMenu && isTree)
        return onTreeMenu(static_cast<const QContextMenuEvent&>(*event));
    const char* const property = isTree ? nullptr : valueProperty(editor);
    if (property && event->type() == QEvent::FocusIn && comesFromOutside(static_cast<QFocusEvent&>(*event)))
        valueAtFocus = editor->property(property);
    return false;
}

bool OptionKeys::onTreeKey(const QKeyEvent& event) {
    if (!isPlain(event) || !dialog.tree->currentItem())
        return false;
    if (event.key() == Qt::Key_Space)
        return switchRow();
    if (event.key() != Qt::Key_F2 && !isEnter(event.key()))
        return false;
    enterRow();
    return true; // also where there is nothing to enter: Enter would press OK
}

bool OptionKeys::onTreeMenu(const QContextMenuEvent& event) {
    auto* const item = static_cast<TreeItem*>(dialog.tree->currentItem());
    QPrefWidget* const row = dialog.rowWidgets.value(item);
    if (event.reason() != QContextMenuEvent::Keyboard || !row)
        return false;
    dialog.showContextMenu(row->label(), row->label()->rect().center());
    return true;
}

bool OptionKeys::onEditorKey(QWidget* editor, const QKeyEvent& event) {
    const bool isBackTab = event.key() == Qt::Key_Backtab;
    if (!isBackTab && !isPlain(event))
        return false;
    const char* const property = valueProperty(editor);
    if (event.key() == Qt::Key_Escape && property)
        editor->setProperty(property, valueAtFocus);
    if (event.key() == Qt::Key_Tab)
        leaveByTab();
    else if (isBackTab || event.key() == Qt::Key_Escape || isEnter(event.key()))
        dialog.tree->setFocus(Qt::OtherFocusReason); // which ends the edit
    else
        return false;
    return true;
}

// On from the tree, past the editors of its other rows.
void OptionKeys::leaveByTab() {
    dialog.tree->setFocus(Qt::OtherFocusReason);
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(dialog.tree, &tab);
}

QWidget* OptionKeys::currentEditor() const {
    QPrefWidget* const row = dialog.rowWidgets.value(static_cast<TreeItem*>(dialog.tree->currentItem()));
    if (!row || !row->isEnabled())
        return nullptr;
    for (QWidget* child : row->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (child != row->label() && child->isEnabled())
            return child;
    return nullptr;
}

bool OptionKeys::switchRow() {
    auto* const button = qobject_cast<QAbstractButton*>(currentEditor());
    if (!button || !button->isCheckable())
        return false;
    button->click();
    return true;
}

void OptionKeys::enterRow() {
    auto* const item = static_cast<TreeItem*>(dialog.tree->currentItem());
    if (rowKind(item->nodeType).isModifiedInDialog() && (contextMenuMask(item) & kMaskModify))
        return dialog.modifyCurrent();
    if (QWidget* const editor = currentEditor())
        return editor->setFocus(Qt::OtherFocusReason);
    item->setExpanded(!item->isExpanded());
}
