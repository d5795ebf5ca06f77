// The commands about external references.
#pragma once

namespace workbench {

struct CommandScope;
class LoadedModule;

// XATTACH, which the plug-in brings, and XREFS. A drawing that is opened tells which references it misses.
void addXrefCommands(const CommandScope& scope, const LoadedModule& module);

} // namespace workbench
