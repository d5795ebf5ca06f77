// PICKSTYLE for the time of a selection of group members.
#pragma once

#include "host/group_selection_step.h"
#include "sdk/db/database.h"

#include <cstdint>

// Reads PICKSTYLE, with a message when that fails, and sets it to 0. Putting it back is the business of the
// host's selection step: without one it stays 0, and that is meant.
class ClearedPickStyle {
public:
    explicit ClearedPickStyle(const OdDbDatabasePtr& database);
    bool isReadable() const { return readable; }
    void noteIn(GroupSelectionRequest& request) const;

private:
    std::int8_t former = 0;
    bool readable;
};
