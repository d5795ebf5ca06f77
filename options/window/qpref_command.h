// The command that opens the Options dialog.
#pragma once

#include "host/cmd_process.h"

class QPREF : public CKWUnknownImpl<ICmdProcess> {
public:
    // Opens the dialog when there is a current document; the result is always 0. Uses nothing of its object,
    // and `params` isn't looked at: the caller may run it on raw memory.
    int Run(IParam* params) override;
};
