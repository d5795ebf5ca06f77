// The command QPREF as the host's command stack holds it; it is a member of the module object.
#pragma once

#include "sdk/ed/command.h"

class _QPREF_cmd : public OdStaticRxObject<OdEdCommand> {
public:
    const OdString groupName() const override;
    const OdString globalName() const override;
    void execute(OdEdCommandContext* ctx) override;
};
