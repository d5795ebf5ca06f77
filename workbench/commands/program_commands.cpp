// Commands about the program itself.
#include "workbench/commands/commands.h"

#include "host/app.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/themes/style_manager.h"
#include "workbench/commands/drawing_commands.h"
#include "workbench/settings.h"

#include <QCoreApplication>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("ProgramCommands", text); }

void setTheme(Console& console, StyleManager& styles) {
    const QString words = tr("Dark Light System _ Dark Light System");
    const QString current = words.section(QLatin1Char(' '), styles.themeNumber(), styles.themeNumber());
    const QString prompt = tr("Choose a theme [%s] <%1>:").arg(current);
    const int answer =
        console.getInput(prompt.toStdWString().c_str(), words.toStdWString().c_str(), 4, nullptr, 0);
    if (answer < kInputKeyword)
        return;
    writeSetting(appService<IProfile>().get(), "Theme", answer - kInputKeyword);
    styles.setTheme(answer - kInputKeyword);
}

} // namespace

void addProgramCommands(const CommandScope& scope) {
    scope.menus.addEntry({Menu::File, tr("&Quit"), "QUIT", {}, QKeySequence::Quit, true});
    Console& console = scope.console;
    CommandLoop& loop = scope.loop;
    StyleManager& styles = scope.styles;
    loop.add({"QUIT", tr("Ends the program."), [scope] {
                  if (settleAllChanges(scope.documents, scope.files))
                      QCoreApplication::quit();
              }});
    loop.add({"THEME", tr("Changes the colours of the program."),
              [&console, &styles] { setTheme(console, styles); }});
}

} // namespace workbench
