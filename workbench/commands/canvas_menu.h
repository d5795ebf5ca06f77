// What a right click on the drawing offers while no command runs.
#pragma once

namespace workbench {

struct CommandScope;
class LoadedModule;

// The last command again, views, the selection, properties, and the groups of the plug-in.
void addCanvasMenu(const CommandScope& scope, const LoadedModule& module);

} // namespace workbench
