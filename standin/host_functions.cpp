// The host's free functions, each a look into the registry.
#include "standin/registry.h"

#include "host/selection.h"

IKWUnknown* theOnlyIApp = nullptr;

namespace standin {
HostRegistry& registry() {
    static HostRegistry theRegistry;
    return theRegistry;
}
} // namespace standin

using standin::registry;

HostDocumentManager* HostDocManager() { return registry().documents; }

void setCtx(OdEdCommandContext* ctx) { registry().commandContext = ctx; }

const wchar_t* Supp_Translate(const wchar_t* text) {
    return registry().translate ? registry().translate(text) : text;
}

const wchar_t* Supp_Translate(const char* text) {
    static CXStringW widened;
    widened = CXStringW(text);
    return Supp_Translate(widened.c_str());
}

HeapHandle Mem_DefaultHeap(int) { return nullptr; }

IHelpService* Get_IHelpService() { return Ref<IHelpService>::share(registry().help).detach(); }

IEvents* Get_IEvents() { return Ref<IEvents>::share(registry().events).detach(); }

void HostUpdateDisplay() {
    if (registry().updateDisplay)
        registry().updateDisplay();
}

void ZoomObject(const OdDbObjectId& id) {
    if (registry().zoomObject)
        registry().zoomObject(id);
}
