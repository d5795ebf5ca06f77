#include "standin/sysvars/read_variable.h"

#include "host/documents.h"

namespace standin {

OdResBufPtr readVariable(const wchar_t* name, OdRxObject* context) {
    HostDocumentManager* const documents = HostDocManager();
    HostVarService* const variables = documents ? documents->varService() : nullptr;
    OdResBufPtr value;
    if (!variables || variables->getVar(name, &value, context, 0) == kVarUnavailable)
        return {};
    return value;
}

} // namespace standin
