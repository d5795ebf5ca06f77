// A loadable module as the drawing SDK sees it, and the types of its two entry points.
#pragma once

#include "sdk/rx/rx_object.h"

class OdRxModule : public OdRxObject {
    ODRX_DECLARE_CLASS(OdRxModule)
    virtual void* sysData() = 0;     // the system handle given at creation
    virtual void deleteModule() = 0; // destroys the module object
    virtual void initApp() = 0;      // called once after loading
    virtual void uninitApp() = 0;    // called once before unloading
    virtual OdString moduleName() const = 0;
};
using OdRxModulePtr = OdSmartPtr<OdRxModule>;

extern "C" {
using odrxCreateModuleObjectFunction = OdRxModule* (*)(void* systemHandle, const wchar_t* moduleName);
using odrxGetAPIVersionFunction = void (*)(int* major, int* minor, int* a, int* b);
}
