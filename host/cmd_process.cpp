// The part of every command object that the command classes share: the held object and the interfaces
// answered.
#include "host/cmd_process.h"

int CKWUnknownImpl<ICmdProcess>::getHeld(IKWUnknown** out) {
    if (!held)
        return 0;
    *out = Ref<IKWUnknown>(held).detach();
    return 1;
}

// Stored before it is counted: inside its AddRef the new object is the one that getHeld gives.
int CKWUnknownImpl<ICmdProcess>::setHeld(IKWUnknown* object) {
    if (object == held.get())
        return 1;
    const auto former = std::exchange(held, Ref<IKWUnknown>::take(object));
    if (object)
        object->AddRef();
    return 1;
}

// ICmdRun is not answered: that is meant.
int CKWUnknownImpl<ICmdProcess>::internalQueryInterface(const std::type_info& type, void** out) {
    return answer<IKWUnknown>(type, out) || answer<ICmdProcess>(type, out);
}
