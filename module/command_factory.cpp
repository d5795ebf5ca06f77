// The table of command objects that the host can ask for by name.
#include "module/command_factory.h"

#include "groups/command_line_create.h"
#include "groups/command_line_edit.h"
#include "groups/command_line_from_selection.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_ungroup.h"
#include "groups/command_line_unified.h"
#include "groups/group_cmd.h"
#include "xref/attach_command.h"

#include <cstring>

namespace {

template <class Command> ICmdProcess* make() { return Ref<Command>::share(new Command).detach(); }

struct CommandClass {
    const char* name;
    ICmdProcess* (*maker)();
};

const CommandClass kCommandClasses[] = {
    {"OdQCmd_hostAttachExternalReferenceCommand", make<OdQCmd_hostAttachExternalReferenceCommand>},
    {"CGroupCmd", make<CGroupCmd>},
    {"CCommandLineGroupUnified", make<CCommandLineGroupUnified>},
    {"CCommandLineGroupEdit", make<CCommandLineGroupEdit>},
    {"CCommandLineGroupCreate", make<CCommandLineGroupCreate>},
    {"CCommandLineGroupUngroup", make<CCommandLineGroupUngroup>},
    {"CCommandLineGroupFromSelection", make<CCommandLineGroupFromSelection>},
    {"CCommandLineGroupRemoveObject", make<CCommandLineGroupRemoveObject>},
};

} // namespace

ICmdProcess* createHostCommand(const char* className) {
    for (const CommandClass& known : kCommandClasses)
        if (className && std::strcmp(className, known.name) == 0)
            return known.maker();
    return nullptr;
}
