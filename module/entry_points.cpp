// The two entry points by which the host loads the module, and the one module object.
#include "module/module_object.h"
#include "sdk/rx/alloc.h"

#include <new>

namespace {

OdRxUnixModulehostPortedModule* theModule = nullptr;

// With a new-handler it is called once and the construction goes on, memory or not: meant, the handler is
// expected not to return.
void* allocateModule() {
    void* const block = odrxAlloc(sizeof(OdRxUnixModulehostPortedModule));
    if (block)
        return block;
    const std::new_handler handler = std::get_new_handler();
    if (!handler)
        throw std::bad_alloc();
    handler();
    return nullptr;
}

} // namespace

void OdRxUnixModulehostPortedModule::deleteModule() {
    theModule = nullptr;
    delete this;
}

extern "C" {

OdRxModule* odrxCreateModuleObject(void* systemHandle, const wchar_t* moduleName) {
    if (theModule)
        return theModule;
    const OdString name(moduleName);
    void* const block = allocateModule();
    theModule = ::new (block) OdRxUnixModulehostPortedModule(systemHandle, name);
    return theModule;
}

void odrxGetAPIVersion(int* major, int* minor, int* a, int* b) {
    *major = 24;
    *minor = 8;
    *a = 0;
    *b = 0;
}
}
