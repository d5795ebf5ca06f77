// Commands of the drawing SDK and the stack on which modules register them. Names are compared without case.
#pragma once

#include "sdk/rx/rx_module.h"

#include <vector>

// What a command runs in; the host derives its own.
class OdEdCommandContext : public OdRxObject {
    ODRX_DECLARE_CLASS(OdEdCommandContext)
};

class OdEdCommand : public OdRxObject {
    ODRX_DECLARE_CLASS(OdEdCommand)
    virtual const OdString groupName() const = 0;
    virtual const OdString globalName() const = 0;
    virtual const OdString localName() const { return globalName(); }
    virtual void execute(OdEdCommandContext* ctx) = 0;
    virtual OdRxModule* module() const { return nullptr; }
    virtual void undefine(bool) {}
    virtual std::int32_t flags() const { return 0; }
};
using OdEdCommandPtr = OdSmartPtr<OdEdCommand>;

class OdEdCommandStack : public OdRxObject {
    ODRX_DECLARE_CLASS(OdEdCommandStack)
    // Throws OdError (eDuplicateKey) when a command of the same group and global name is registered.
    void addCommand(OdEdCommand* command);
    // Removes the registered command of the same group and global name; nothing when there is none.
    void removeCmd(OdEdCommand* command);
    // By global or local name; null when unknown.
    OdEdCommandPtr lookupCmd(const OdString& name) const;
    std::vector<OdString> globalNames() const;

private:
    std::vector<OdEdCommandPtr> commands;
};
using OdEdCommandStackPtr = OdSmartPtr<OdEdCommandStack>;

// The process-wide command stack.
OdEdCommandStackPtr odedRegCmds();
