// The module as the host loads it.
#pragma once

#include "module/qpref_cmd.h"
#include "sdk/rx/rx_module.h"

#include <atomic>

class hostPortedModule : public OdRxModule {
public:
    void initApp() override;
    void uninitApp() override;

protected:
    OdStaticRxObject<_QPREF_cmd> qprefCommand;
};

// Adds the module's bookkeeping. There is at most one module object, which the module pointer holds.
template <class Module, class Base> class OdRxUnixModule : public Base {
public:
    OdRxUnixModule(void* system, const OdString& moduleTitle) : systemHandle(system), name(moduleTitle) {}
    void addRef() override { references.fetch_add(1); }
    void release() override { references.fetch_sub(1); }
    long numRefs() const override { return references.load(); }
    void* sysData() override { return systemHandle; }
    OdString moduleName() const override { return name; }

private:
    void* systemHandle;
    std::atomic<std::int32_t> references{0};
    OdString name;
};

class OdRxUnixModulehostPortedModule : public OdRxUnixModule<hostPortedModule, hostPortedModule> {
public:
    using OdRxUnixModule::OdRxUnixModule;
    void deleteModule() override; // clears the module pointer first, then destroys the object
};
