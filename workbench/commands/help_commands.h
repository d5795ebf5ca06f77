// HELP and GUIDE.
#pragma once

#include <QString>

namespace standin {
class HelpService;
}

namespace workbench {

struct CommandScope;

// `help` and the scope's parts outlive the commands. `guideFile`: the user guide.
void addHelpCommands(const CommandScope& scope, standin::HelpService& help, const QString& guideFile);

} // namespace workbench
