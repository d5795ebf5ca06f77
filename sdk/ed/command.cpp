// The stack of commands of an application, by group and name.
#include "sdk/ed/command.h"

#include <algorithm>

ODRX_DEFINE_CLASS(OdEdCommandContext, OdRxObject)
ODRX_DEFINE_CLASS(OdEdCommand, OdRxObject)
ODRX_DEFINE_CLASS(OdEdCommandStack, OdRxObject)

namespace {

auto sameCommand(const OdEdCommand& wanted) {
    return [group = wanted.groupName(), name = wanted.globalName()](const OdEdCommandPtr& registered) {
        return registered->groupName().iCompare(group) == 0 && registered->globalName().iCompare(name) == 0;
    };
}

} // namespace

void OdEdCommandStack::addCommand(OdEdCommand* command) {
    if (std::any_of(commands.begin(), commands.end(), sameCommand(*command)))
        throw OdError(eDuplicateKey, command->globalName());
    commands.emplace_back(command);
}

void OdEdCommandStack::removeCmd(OdEdCommand* command) {
    const auto found = std::find_if(commands.begin(), commands.end(), sameCommand(*command));
    if (found != commands.end())
        commands.erase(found);
}

OdEdCommandPtr OdEdCommandStack::lookupCmd(const OdString& name) const {
    for (const OdEdCommandPtr& command : commands)
        if (command->globalName().iCompare(name) == 0 || command->localName().iCompare(name) == 0)
            return command;
    return {};
}

std::vector<OdString> OdEdCommandStack::globalNames() const {
    std::vector<OdString> names;
    for (const OdEdCommandPtr& command : commands)
        names.push_back(command->globalName());
    return names;
}

OdEdCommandStackPtr odedRegCmds() {
    static const OdEdCommandStackPtr stack(new OdEdCommandStack);
    return stack;
}
