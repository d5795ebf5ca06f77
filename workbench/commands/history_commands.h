// The command about the former versions of a drawing's file.
#pragma once

#include "workbench/commands/commands.h"

namespace workbench {

class HistoryKeeper;

void addHistoryCommands(const CommandScope& scope, HistoryKeeper& history); // VERSIONS

} // namespace workbench
