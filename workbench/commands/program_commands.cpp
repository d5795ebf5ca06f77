// Commands about the program itself.
#include "workbench/commands/commands.h"

#include "host/app.h"
#include "host/documents.h"
#include "host/help.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/themes/style_manager.h"
#include "workbench/commands/drawing_commands.h"
#include "workbench/settings.h"

#include <QCoreApplication>
#include <algorithm>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("ProgramCommands", text); }

// Commands of the plug-in bring no description of their own.
QString descriptionOf(const CommandLoop& loop, const QString& name) {
    if (name == QLatin1String("QPREF"))
        return tr("Opens the options.");
    if (name == QLatin1String("DWGPROPS"))
        return tr("Opens the properties of the drawing.");
    return loop.descriptionOf(name);
}

void listCommands(Console& console, const CommandLoop& loop) {
    int longest = 0;
    for (const QString& name : loop.names())
        longest = std::max(longest, name.size());
    for (const QString& name : loop.names()) {
        const QString description = descriptionOf(loop, name);
        console.print(description.isEmpty() ? name : name.leftJustified(longest + 2) + description);
    }
    console.print(
        tr("Enter repeats the last command, Escape cancels, the arrow keys bring back earlier lines."));
}

void setTheme(Console& console, StyleManager& styles) {
    const QString words = tr("Dark Light System _ Dark Light System");
    const QString current = words.section(QLatin1Char(' '), styles.themeNumber(), styles.themeNumber());
    const QString prompt = tr("Choose a theme [%s] <%1>:").arg(current);
    const int answer =
        console.getInput(prompt.toStdWString().c_str(), words.toStdWString().c_str(), 4, nullptr, 0);
    if (answer < kInputKeyword)
        return;
    writeTheme(appService<IProfile>().get(), answer - kInputKeyword);
    styles.setTheme(answer - kInputKeyword);
}

} // namespace

void addProgramCommands(const CommandScope& scope) {
    scope.menus.addEntry({Menu::File, tr("&Quit"), "QUIT", {}, QKeySequence::Quit, true});
    scope.menus.addEntry({Menu::Help, tr("List of &commands"), "HELP", "command_pref"});
    Console& console = scope.console;
    CommandLoop& loop = scope.loop;
    StyleManager& styles = scope.styles;
    loop.add({"QUIT", tr("Ends the program."), [scope] {
                  if (settleAllChanges(scope.documents, scope.files))
                      QCoreApplication::quit();
              }});
    loop.add({"HELP", tr("Lists the commands."), [&console, &loop] { listCommands(console, loop); }});
    loop.add({"THEME", tr("Changes the colours of the program."),
              [&console, &styles] { setTheme(console, styles); }});
}

} // namespace workbench
