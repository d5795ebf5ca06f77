// The commands about groups of objects, which the plug-in brings.
#pragma once

namespace workbench {

struct CommandScope;
class LoadedModule;

// GROUP and its kin, in the menu, on the tool bar and in the menu that a right click on the drawing brings
// up.
void addGroupCommands(const CommandScope& scope, const LoadedModule& module);

} // namespace workbench
