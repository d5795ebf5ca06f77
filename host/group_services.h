// What a host may supply to the group commands, which otherwise write the reason of a failed creation to the
// debug log alone, and leave the dialog on the row of a group that was exploded. Reached from theOnlyIApp
// like every service.
#pragma once

#include "host/ref.h"

class OdError;

class IGroupServices : public IKWUnknown {
public:
    // A group could not be made: tells the user why.
    virtual void creationFailed(const OdError& error) = 0;
    // True: an Explode takes the row's id away with the row, and no group is chosen afterwards. False: as
    // without this interface, where the rows below keep the ids of those before them.
    virtual bool explodeGivesUpRow() = 0;
};
