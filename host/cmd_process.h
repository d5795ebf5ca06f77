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

template <> class CKWUnknownImpl<ICmdProcess> : public ICmdProcess {
public:
    std::int64_t AddRef() override { return internalAddRef(); }
    std::int64_t Release() override { return internalRelease(); }
    int QueryInterface(const std::type_info& type, void** out) override {
        return internalQueryInterface(type, out);
    }
    std::int32_t getStatus() override { return status; }
    int constantZero() override { return 0; }
    int enableQuery() override { return 1; }
    int getHeld(IKWUnknown** out) override;
    int setHeld(IKWUnknown* object) override;

protected:
    virtual ~CKWUnknownImpl() = default;
    virtual std::int64_t internalAddRef() { return ++refCount; }
    virtual std::int64_t internalRelease();
    virtual int internalQueryInterface(const std::type_info& type, void** out);

    std::int64_t refCount = 0;
    Ref<IKWUnknown> held;
    std::int32_t status = 0;
};
