// What a host may supply to the profile list of the Options dialog, which otherwise shows names and does
// nothing. Reached from theOnlyIApp like every service.
#pragma once

#include "host/ref.h"
#include "sdk/rx/od_string.h"

#include <vector>

// Named sets of all that the user has set. One of them is current: it is what IProfile holds, and what is
// changed there belongs to it. Names differ in more than their case. Whatever changes something returns an
// empty text, or what stands against it in words for the user, and then has changed nothing.
class IProfiles : public IKWUnknown {
public:
    virtual std::vector<OdString> names() = 0; // the current one is among them
    virtual OdString current() = 0;
    virtual OdString select(const wchar_t* name) = 0;
    virtual OdString create(const wchar_t* name) = 0;      // with the default of everything
    virtual OdString copyCurrent(const wchar_t* name) = 0; // as it is kept, without selecting the copy
    virtual OdString renameCurrent(const wchar_t* name) = 0;
    virtual OdString remove(const wchar_t* name) = 0; // not the current one
};
