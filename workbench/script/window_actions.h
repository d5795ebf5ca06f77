// What the lines of a script that begin with @ do to the active window: @click, @set, @select, @expand, @key
// and @screenshot, and @wait.
#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace workbench {

// A line that can never be taken.
struct ScriptFault {
    QString reason;
};

// The class or object name that a line "@wait NAME" waits for; empty for other lines.
QString awaitedWindow(const QString& line);
bool isActive(const QString& classOrObjectName);

// What a line does, or null while the active window has nothing that it could act on. Throws ScriptFault for
// a line that is no action.
std::function<void()> windowAction(const QString& line);

// Cancels the menu or modal dialog on top, by its Cancel button if it has one; false when there is none.
bool cancelTopmost();

// The window that a user would act on: an open menu, the modal dialog, or the main window.
QWidget* activeWindowForScript();

} // namespace workbench
