// The commands about groups of objects, which the plug-in brings.
#pragma once

#include "host/cmd_process.h"
#include "host/ref.h"

#include <QString>
#include <vector>

namespace workbench {

struct CommandScope;
class LoadedModule;

// GROUP and its kin, in the menu and on the tool bar.
void addGroupCommands(const CommandScope& scope, const LoadedModule& module);

// For other menus. Each command knows whether it fits the selection.
struct OfferedGroupCommand {
    QString name, entry;
    bool startsSection;
    Ref<ICmdProcess> command; // null when the plug-in lacks it
};
std::vector<OfferedGroupCommand> offeredGroupCommands(const LoadedModule& module);

} // namespace workbench
