// The interface of a command object: run it on the interface thread with a current document, then read its
// status.
#pragma once

#include "host/param.h"

class ICmdRun : public IKWUnknown {};

class ICmdProcess : public ICmdRun {
public:
    virtual int Run(IParam* params) = 0; // `params` may be null
    virtual std::int32_t getStatus() = 0;
    virtual int constantZero() = 0;
    virtual int enableQuery() = 0;
    // An optional object held for the caller. getHeld gives 0 and leaves `out` when there is none.
    virtual int getHeld(IKWUnknown** out) = 0;
    virtual int setHeld(IKWUnknown* object) = 0;
};

template <> class CKWUnknownImpl<ICmdProcess> : public CKWCounted<ICmdProcess> {
public:
    std::int32_t getStatus() override { return status; }
    int constantZero() override { return 0; }
    int enableQuery() override { return 1; }
    int getHeld(IKWUnknown** out) override;
    int setHeld(IKWUnknown* object) override;

protected:
    int internalQueryInterface(const std::type_info& type, void** out) override;

    Ref<IKWUnknown> held;
    std::int32_t status = 0;
};
