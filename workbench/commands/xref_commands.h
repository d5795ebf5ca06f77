// The commands about external references.
#pragma once

#include "host/ref.h"

namespace workbench {

struct CommandScope;
class LoadedModule;

// XATTACH, which the plug-in brings, and XREFS. A drawing that is opened tells which references it misses.
void addXrefCommands(const CommandScope& scope, const LoadedModule& module);
// What asks XATTACH's files on the console, where the commands about drawings do.
Ref<IKWUnknown> attachFilesFor(const CommandScope& scope);

} // namespace workbench
