// What the two local command classes of DWGPROPS share: one when the module starts, one when it ends.
#pragma once

#include "sdk/ed/command.h"

class DwgPropsCommand : public OdEdCommand {
public:
    void addRef() override {}
    void release() override {}
    const OdString groupName() const override;
    const OdString globalName() const override;
    void execute(OdEdCommandContext* ctx) override;
};
