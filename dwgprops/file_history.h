// The file history as this module has it: none. Another module may supply one.
#pragma once

#include "host/file_history.h"

#include "sdk/rx/smart_ptr.h"

class KWFileHistoryPE : public HostFileHistory {
public:
    int query(wchar_t* document, std::vector<std::pair<OdString, OdString>>& out) override;
};

// The history that hangs on the class of the database. Null when there is none; throws
// OdError_NotThatKindOfClass when what hangs there is no history.
OdSmartPtr<HostFileHistory> registeredFileHistory();
