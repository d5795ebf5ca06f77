// The part of every command object that the command classes share: the held object and the interfaces
// answered.
#include "host/cmd_process.h"

int CKWUnknownImpl<ICmdProcess>::getHeld(IKWUnknown** out) {
    if (!held)
        return 0;
    *out = Ref<IKWUnknown>(held).detach();
    return 1;
}

int CKWUnknownImpl<ICmdProcess>::setHeld(IKWUnknown* object) {
    if (object != held.get())
        held = Ref<IKWUnknown>::share(object);
    return 1;
}

std::int64_t CKWUnknownImpl<ICmdProcess>::internalRelease() {
    const std::int64_t left = --refCount;
    if (left == 0)
        delete this;
    return left;
}

// ICmdRun is not answered: that is meant.
int CKWUnknownImpl<ICmdProcess>::internalQueryInterface(const std::type_info& type, void** out) {
    const bool known = isInterface(type, typeid(IKWUnknown)) || isInterface(type, typeid(ICmdProcess));
    if (out)
        *out = known ? static_cast<ICmdProcess*>(this) : nullptr;
    if (known && out)
        AddRef();
    return known ? 1 : 0;
}
