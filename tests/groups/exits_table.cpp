#include "tests/groups/exits_table.h"

#include "tests/groups/exit_flows.h"

std::vector<Flow> flowsOfGroupCommands() {
    return exits::joined(
        {exits::unifiedFlows(), exits::smallFlows(), exits::editFlows(), exits::stepFlows()});
}
