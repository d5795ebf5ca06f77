// Plug-ins that can't be taken, one for each value of KIND.
#include "sdk/rx/od_error.h"
#include "sdk/rx/rx_module.h"

#include <stdexcept>

enum { kGivesNull = 1, kThrowsAtEntry, kOtherVersion, kThrowsAtStart };

namespace {

class BadModule : public OdRxModule {
public:
    void* sysData() override { return nullptr; }
    void deleteModule() override { delete this; }
    void initApp() override { throw OdError(L"not in the mood"); }
    void uninitApp() override {}
    OdString moduleName() const override { return L"bad"; }
};

} // namespace

extern "C" {

OdRxModule* odrxCreateModuleObject(void*, const wchar_t*) {
    if (KIND == kThrowsAtEntry)
        throw std::runtime_error("no module today");
    return KIND == kGivesNull ? nullptr : new BadModule;
}

void odrxGetAPIVersion(int* major, int* minor, int* a, int* b) {
    *major = 24;
    *minor = KIND == kOtherVersion ? 9 : 8;
    *a = *b = 0;
}

void* createHostCommand(const char*) { return nullptr; }
}
