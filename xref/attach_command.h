// The command that attaches drawings to the current one as external references.
#pragma once

#include "host/cmd_process.h"

#include <QCoreApplication>

// Asks for files, shows the attach dialog, and keeps or takes back what it has done. Run needs a current
// document, returns 0 on every path and ignores its parameters; `status` stays as it starts. An exception of
// the drawing SDK passes through, with everything taken back.
class OdQCmd_hostAttachExternalReferenceCommand : public CKWUnknownImpl<ICmdProcess> {
    Q_DECLARE_TR_FUNCTIONS(OdQCmd_hostAttachExternalReferenceCommand)
public:
    int Run(IParam* params) override;
};
