// What a command leaves highlighted goes off when the command has ended, in whatever way.
#pragma once

#include "sdk/db/database.h"
#include "sdk/db/reactor.h"

#include <unordered_set>

namespace workbench {

// Watches one drawing as long as it lives; what was highlighted before stays so.
class LeftHighlight : public OdDbDatabaseReactor {
public:
    explicit LeftHighlight(OdDbDatabasePtr watched);
    ~LeftHighlight() override;
    LeftHighlight(const LeftHighlight&) = delete;
    LeftHighlight& operator=(const LeftHighlight&) = delete;
    void highlightChanged(OdDbObjectId id) override;

private:
    OdDbDatabasePtr drawing;
    std::unordered_set<OdDbObjectId> changed;
};

} // namespace workbench
