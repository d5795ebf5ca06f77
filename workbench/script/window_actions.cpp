// One function for each word that a line with @ may begin with.
#include "workbench/script/window_actions.h"

#include "workbench/script/widget_finder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QPixmap>
#include <QPointer>
#include <QTextEdit>
#include <QTreeWidget>
#include <map>

namespace workbench {

namespace {

using Action = std::function<void()>;

QString tr(const char* text) { return QCoreApplication::translate("ScriptPlayer", text); }

void sendKey(QWidget* receiver, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    const QPointer<QWidget> target(receiver);
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(receiver, &press);
    if (!target)
        return;
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(receiver, &release);
}

// Replaces the text as a user does who marks all and types.
void typeInto(QLineEdit* edit, const QString& text) {
    edit->setFocus();
    edit->selectAll();
    if (text.isEmpty())
        sendKey(edit, Qt::Key_Delete, Qt::NoModifier, {});
    for (const QChar character : text)
        sendKey(edit, 0, Qt::NoModifier, character);
}

void choose(QComboBox* box, const QString& text) {
    const int index = box->findText(text);
    if (index < 0)
        return;
    box->setCurrentIndex(index);
    QMetaObject::invokeMethod(box, "activated", Q_ARG(int, index));
}

void setText(QWidget* part, const QString& text) {
    auto* edit = qobject_cast<QLineEdit*>(part);
    if (auto* box = qobject_cast<QComboBox*>(part); box && !box->isEditable())
        return choose(box, text);
    if (auto* page = qobject_cast<QTextEdit*>(part))
        return page->setPlainText(text);
    if (!edit)
        edit = part->findChild<QLineEdit*>(); // that of a spin box or an editable combo box
    if (edit)
        typeInto(edit, text);
}

Action click(const QString& argument) { return clickOn(activeWindowForScript(), argument); }

Action set(const QString& argument) {
    QWidget* part = widgetNamed(activeWindowForScript(), argument.section(QLatin1Char(' '), 0, 0));
    const QString text = argument.section(QLatin1Char(' '), 1);
    return part ? Action([part = QPointer<QWidget>(part), text] {
        if (part)
            setText(part, text);
    })
                : nullptr;
}

Action select(const QString& argument) {
    QTreeWidgetItem* row = treeRow(activeWindowForScript(), argument);
    return row ? Action([row] {
        row->treeWidget()->scrollToItem(row);
        row->treeWidget()->setCurrentItem(row);
    })
               : nullptr;
}

Action expand(const QString& argument) {
    QTreeWidgetItem* row = treeRow(activeWindowForScript(), argument);
    return row ? Action([row] { row->setExpanded(true); }) : nullptr;
}

Action key(const QString& argument) {
    const QKeySequence keys(argument);
    if (keys.isEmpty() || keys[0] == Qt::Key_unknown)
        throw ScriptFault{tr("\"%1\" is no key").arg(argument)};
    const int code = keys[0] & ~int(Qt::KeyboardModifierMask);
    const auto modifiers = Qt::KeyboardModifiers(keys[0] & int(Qt::KeyboardModifierMask));
    QWidget* window = activeWindowForScript();
    QWidget* receiver = window->focusWidget() ? window->focusWidget() : window;
    const QString text = argument.size() == 1 ? argument : QString();
    return [receiver = QPointer<QWidget>(receiver), code, modifiers, text] {
        if (receiver)
            sendKey(receiver, code, modifiers, text);
    };
}

Action screenshot(const QString& argument) {
    return [window = QPointer<QWidget>(activeWindowForScript()), file = argument + QStringLiteral(".png")] {
        for (QWidget* canvas : window ? window->findChildren<QWidget*>("canvas") : QList<QWidget*>())
            QMetaObject::invokeMethod(canvas, "finishPicture");
        if (window && !window->grab().save(file))
            throw ScriptFault{tr("%1 can't be written").arg(file)};
    };
}

} // namespace

QWidget* activeWindowForScript() {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* dialog = QApplication::activeModalWidget())
        return dialog;
    if (QWidget* active = QApplication::activeWindow(); active && active->windowType() != Qt::Popup)
        return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() != Qt::Popup)
            return window;
    throw ScriptFault{tr("there is no window")};
}

bool cancelTopmost() {
    if (QWidget* const popup = QApplication::activePopupWidget())
        return popup->close();
    QWidget* const open = QApplication::activeModalWidget();
    auto* const button =
        open ? qobject_cast<QAbstractButton*>(widgetNamed(open, QStringLiteral("cancelButton"))) : nullptr;
    if (button)
        button->click();
    else if (auto* const dialog = qobject_cast<QDialog*>(open))
        dialog->reject();
    return open != nullptr;
}

QString awaitedWindow(const QString& line) {
    const QString command = QStringLiteral("@wait ");
    return line.startsWith(command) ? line.mid(command.size()).trimmed() : QString();
}

bool isActive(const QString& classOrObjectName) {
    const QWidget* window = activeWindowForScript();
    const QString className = QString::fromLatin1(window->metaObject()->className());
    return window->objectName() == classOrObjectName ||
           className.section(QStringLiteral("::"), -1) == classOrObjectName;
}

std::function<void()> windowAction(const QString& line) {
    static const std::map<QString, Action (*)(const QString&)> actions = {
        {"@click", click},   {"@set", set}, {"@select", select},
        {"@expand", expand}, {"@key", key}, {"@screenshot", screenshot}};
    const auto found = actions.find(line.section(QLatin1Char(' '), 0, 0));
    const QString argument = line.section(QLatin1Char(' '), 1).trimmed();
    if (found == actions.end() || argument.isEmpty())
        throw ScriptFault{tr("\"%1\" is no action on a window").arg(line)};
    return found->second(argument);
}

} // namespace workbench
