// What of a drawing is not on the screen although it is in the file, as a user is told.
#pragma once

#include "sdk/db/object_id.h"

#include <QStringList>
#include <map>
#include <string>
#include <unordered_set>
#include <vector>

class OdDbEntity;

namespace standin {

class Unshown {
public:
    // Of a kind that has no picture; each object counts once, also in a block that is shown often.
    void addMissed(const OdDbEntity& entity);
    // Only some of its parts are shown: it has too many of its own, or the drawing has too many in all.
    void addCut(const OdDbObjectId& id, bool isTooLarge) {
        (isTooLarge ? tooLarge : crowdedOut).push_back(id);
    }
    // One line for what is missed by kinds, the most frequent first, and one for what was cut off
    // for each of the reasons.
    QStringList notices() const;

private:
    QString missedNotice() const;
    std::unordered_set<OdDbObjectId> seen;
    std::map<std::string, int> missed;
    std::vector<OdDbObjectId> tooLarge, crowdedOut;
};

} // namespace standin
