// The history of a drawing's file, as a host supplies it: a protocol extension that it adds to the class of
// the database under the key OdRxObject::desc().
#pragma once

#include "sdk/rx/rx_object.h"

#include <utility>
#include <vector>

class HostFileHistory : public OdRxObject {
public:
    // Appends one pair for each former version of the document, the oldest first: the path of its file and
    // the reason for which it was kept. `document` is the document's title; the result is the number of
    // entries.
    virtual int query(wchar_t* document, std::vector<std::pair<OdString, OdString>>& out) = 0;
};
