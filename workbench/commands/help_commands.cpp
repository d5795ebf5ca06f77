// The list of commands, in a window where dialogs are shown and on the console where they are not, what there
// is to say of one of them, and the guide.
#include "workbench/commands/help_commands.h"

#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/help/help_service.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/file_questions.h"

#include <QCoreApplication>
#include <algorithm>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("HelpCommands", text); }

// Commands of the plug-in bring no description of their own.
QString descriptionOf(const CommandLoop& loop, const QString& name) {
    if (name == QLatin1String("QPREF"))
        return tr("Opens the options.");
    if (name == QLatin1String("DWGPROPS"))
        return tr("Opens the properties of the drawing.");
    return loop.descriptionOf(name);
}

// The page that tells more of a command; null without one.
const char* topicOf(const QString& name) {
    static const std::pair<const char*, const char*> topics[] = {{"QPREF", "IDH_PreferencesCMD"},
                                                                 {"DWGPROPS", "IDH_DWGProps"},
                                                                 {"XATTACH", "IDH_xattach"},
                                                                 {"GROUP", "IDH_GroupCmd[1]"}};
    for (const auto& [command, topic] : topics)
        if (name == QLatin1String(command))
            return topic;
    return nullptr;
}

void printCommands(Console& console, const CommandLoop& loop) {
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

QString rowOf(const CommandLoop& loop, const QString& name) {
    const QString cell = QStringLiteral("<td style=\"padding-right:16px\">%1</td>");
    return QStringLiteral("<tr>") + cell.arg(QStringLiteral("<b>%1</b>").arg(name.toHtmlEscaped())) +
           cell.arg(loop.aliasesOf(name).join(QStringLiteral(", ")).toHtmlEscaped()) +
           cell.arg(descriptionOf(loop, name).toHtmlEscaped()) + QStringLiteral("</tr>");
}

QString commandPage(const CommandLoop& loop) {
    QString rows;
    for (const QString& name : loop.names())
        rows += rowOf(loop, name);
    const QString head = QStringLiteral("<tr><th align=\"left\">%1</th><th align=\"left\">%2</th>"
                                        "<th align=\"left\">%3</th></tr>")
                             .arg(tr("Command"), tr("Short"), tr("What it does"));
    return QStringLiteral("<html><head><title>%1</title></head><body><h1>%1</h1><p>%2</p>"
                          "<table cellspacing=\"0\" cellpadding=\"3\">%3%4</table></body></html>")
        .arg(tr("Commands"),
             tr("Enter repeats the last command, Escape cancels, the arrow keys bring back earlier lines. "
                "HELP with a name tells about that command."),
             head, rows);
}

void tellOf(const CommandScope& scope, HelpService& help, const QString& word) {
    const QString name = scope.loop.commandOf(word);
    if (name.isEmpty())
        return scope.console.print(tr("Unknown command \"%1\". HELP lists the commands.").arg(word));
    const QStringList aliases = scope.loop.aliasesOf(name);
    const QString names = aliases.isEmpty() ? name : name + QStringLiteral(" (%1)").arg(aliases.join(", "));
    scope.console.print(QStringLiteral("%1: %2").arg(names, descriptionOf(scope.loop, name)));
    if (topicOf(name) && !scope.files.asksOnConsole())
        help.showTopic(topicOf(name));
}

} // namespace

void addHelpCommands(const CommandScope& scope, HelpService& help, const QString& guideFile) {
    scope.menus.addEntry(
        {Menu::Help, tr("User &guide"), "GUIDE", "command_pref", QKeySequence::HelpContents});
    scope.menus.addEntry({Menu::Help, tr("List of &commands"), "HELP"});
    scope.loop.add({"HELP", tr("Lists the commands; with a name behind it, tells about that one."),
                    [scope, &help] {
                        if (scope.files.asksOnConsole())
                            printCommands(scope.console, scope.loop);
                        else
                            help.showPage(commandPage(scope.loop));
                    },
                    [scope, &help](const QString& word) { tellOf(scope, help, word); }});
    scope.loop.add({"GUIDE", tr("Opens the user guide."), [scope, &help, guideFile] {
                        if (scope.files.asksOnConsole())
                            scope.console.print(tr("The user guide is %1.").arg(guideFile));
                        else
                            help.showFile(guideFile);
                    }});
}

} // namespace workbench
