// Runs the plug-in's group commands and offers those that fit the selection.
#include "workbench/commands/group_commands.h"

#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "workbench/canvas/canvas.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/left_highlight.h"
#include "workbench/module_loader.h"

#include <QCoreApplication>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("GroupCommands", text); }

constexpr int kCancelledOrFailed = 1; // of a command's run

struct GroupCommand {
    const char* name;
    const char* className;
    const char* description;
    const char* entry; // in the menus
    const char* icon;  // null for none
    bool startsSection;
};

const GroupCommand groupCommands[] = {
    {"GROUP", "CGroupCmd", QT_TRANSLATE_NOOP("GroupCommands", "Shows the groups of the drawing."),
     QT_TRANSLATE_NOOP("GroupCommands", "&Groups..."), "grip", false},
    {"GROUPCREATE", "CCommandLineGroupCreate",
     QT_TRANSLATE_NOOP("GroupCommands", "Makes a group, with a name and a description."),
     QT_TRANSLATE_NOOP("GroupCommands", "&Create group"), nullptr, true},
    {"GROUPSELECTION", "CCommandLineGroupFromSelection",
     QT_TRANSLATE_NOOP("GroupCommands", "Makes a group of what is selected."),
     QT_TRANSLATE_NOOP("GroupCommands", "Group &selection"), "add", false},
    {"GROUPEDIT", "CCommandLineGroupEdit",
     QT_TRANSLATE_NOOP("GroupCommands", "Adds objects to a group, removes some or renames it."),
     QT_TRANSLATE_NOOP("GroupCommands", "&Edit group"), "edit", false},
    {"GROUPREMOVE", "CCommandLineGroupRemoveObject",
     QT_TRANSLATE_NOOP("GroupCommands", "Removes what is selected from a group."),
     QT_TRANSLATE_NOOP("GroupCommands", "&Remove from group"), nullptr, false},
    {"UNGROUP", "CCommandLineGroupUngroup",
     QT_TRANSLATE_NOOP("GroupCommands", "Takes a group apart; its objects stay."),
     QT_TRANSLATE_NOOP("GroupCommands", "&Ungroup"), "delete", false},
    {"-GROUP", "CCommandLineGroupUnified",
     QT_TRANSLATE_NOOP("GroupCommands", "Asks for what to do with groups at the console."),
     QT_TRANSLATE_NOOP("GroupCommands", "Groups at the c&onsole"), nullptr, true},
};

void run(const CommandScope& scope, const LoadedModule& module, const GroupCommand& entry) {
    if (!scope.documents.currentOne())
        return scope.console.print(tr("No drawing is open."));
    const Ref<ICmdProcess> command = module.command(entry.className);
    if (!command)
        return scope.console.print(tr("The plug-in has no group commands."));
    const LeftHighlight tidying(scope.documents.currentOne()->database());
    if (command->Run(nullptr) == kCancelledOrFailed)
        scope.console.print(tr("Nothing was changed."));
    scope.canvas.refresh();
}

} // namespace

void addGroupCommands(const CommandScope& scope, const LoadedModule& module) {
    for (const GroupCommand& entry : groupCommands) {
        const QString name = QString::fromLatin1(entry.name);
        scope.loop.add(
            {name, tr(entry.description), [scope, &module, &entry] { run(scope, module, entry); }});
        scope.menus.addEntry({Menu::Groups,
                              tr(entry.entry),
                              name,
                              entry.icon ? QString::fromLatin1(entry.icon) : QString(),
                              {},
                              entry.startsSection});
    }
}

std::vector<OfferedGroupCommand> offeredGroupCommands(const LoadedModule& module) {
    std::vector<OfferedGroupCommand> offered;
    for (const GroupCommand& entry : groupCommands)
        offered.push_back({QString::fromLatin1(entry.name), tr(entry.entry), entry.startsSection,
                           module.command(entry.className)});
    return offered;
}

} // namespace workbench
