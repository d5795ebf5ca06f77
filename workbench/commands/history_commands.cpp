// Asks for a version by a dialog or on the console, and opens it.
#include "workbench/commands/history_commands.h"

#include "host/modal_runner.h"
#include "host/qt_ui_core.h"
#include "host/text.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "workbench/commands/file_questions.h"
#include "workbench/history/history_keeper.h"
#include "workbench/history/versions_dialog.h"

#include <QCoreApplication>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("HistoryCommands", text); }

// The latest first, as in the dialogs.
void list(Console& console, const std::vector<FileVersion>& versions) {
    int number = 0;
    for (auto version = versions.rbegin(); version != versions.rend(); ++version)
        console.print(
            QStringLiteral("%1  %2  %3").arg(++number, 3).arg(timeText(*version), reasonText(*version)));
}

// Asks again until the answer is a number of the list; 0 when the user wants none.
int typedNumber(Console& console, int count) {
    for (;;) {
        OdString answer;
        const std::wstring prompt = tr("Enter number of version to open <none>:").toStdWString();
        if (console.getInput(prompt.c_str(), nullptr, kAnyText, &answer, 0) != kInputTyped)
            return 0;
        const int number = hostqt::qString(answer).trimmed().toInt();
        if (number >= 1 && number <= count)
            return number;
        console.print(tr("Enter a number from 1 to %1.").arg(count));
    }
}

void openByConsole(const CommandScope& scope, HistoryKeeper& history, const Document& current) {
    const std::vector<FileVersion> versions = history.versionsOf(current);
    if (versions.empty())
        return scope.console.print(tr("No former version of this drawing is kept."));
    list(scope.console, versions);
    const int number = typedNumber(scope.console, static_cast<int>(versions.size()));
    if (number > 0)
        history.open(current, versions[versions.size() - static_cast<std::size_t>(number)]);
}

void openByDialog(HistoryKeeper& history, const Document& current) {
    VersionsDialog dialog(current.displayName(), history.versionsOf(current),
                          host_qt_ui_core::parentForDialog());
    if (runModal(dialog) == QDialog::Accepted)
        history.open(current, dialog.chosen());
}

void versions(const CommandScope& scope, HistoryKeeper& history) {
    const Document* current = scope.documents.currentOne();
    if (!current)
        scope.console.print(tr("No drawing is open."));
    else if (FileQuestions::dialogsAreOff())
        openByConsole(scope, history, *current);
    else
        openByDialog(history, *current);
}

} // namespace

void addHistoryCommands(const CommandScope& scope, HistoryKeeper& history) {
    scope.menus.addEntry({Menu::File, tr("&Versions..."), "VERSIONS", {}, {}, true});
    scope.loop.add({"VERSIONS", tr("Lists what the drawing's file held before, and opens it."),
                    [scope, &history] { versions(scope, history); }});
}

} // namespace workbench
