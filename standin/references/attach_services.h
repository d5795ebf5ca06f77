// What the workbench's host supplies to the attaching of external references.
#pragma once

#include "host/attach_services.h"

#include <QStringList>

namespace standin {

// Relative paths start from the folder of a saved drawing; the settings stand in the section
// "AttachReference" of the current profile; texts are printed on the console, refusals also shown in a box.
class AttachServices : public CKWUnknownImpl<IAttachServices> {
public:
    CXStringW basePath(OdDbDatabase* database) override;
    IParam* settings() override;
    void report(HostCommandIO* io, const wchar_t* text) override;
    void refuse(const wchar_t* text) override;
    bool numbersTakenNames() override { return true; }
};

// Where a reference is looked for that is not found by its own path: the folders for external references,
// then those for support files.
QStringList referenceFolders();

} // namespace standin
