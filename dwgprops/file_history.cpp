// The module's own history, which is empty, and the way to the one that is registered.
#include "dwgprops/file_history.h"

#include "sdk/db/database.h"

int KWFileHistoryPE::query(wchar_t*, std::vector<std::pair<OdString, OdString>>&) { return 0; }

OdSmartPtr<HostFileHistory> registeredFileHistory() {
    const OdRxObjectPtr extension = odrxCast<OdRxObject>(OdDbDatabase::desc()->getX(OdRxObject::desc()));
    if (extension.isNull())
        return {};
    auto* const history = dynamic_cast<HostFileHistory*>(extension.get());
    if (!history)
        throw OdError_NotThatKindOfClass(extension->isA(), OdRxObject::desc());
    return history;
}
