// Class descriptions and casts that go by them.
#include "sdk/rx/rx_object.h"

bool OdRxClass::isDerivedFrom(const OdRxClass* ancestor) const {
    for (const OdRxClass* c = this; c; c = c->parent)
        if (c == ancestor)
            return true;
    return false;
}

OdRxObjectPtr OdRxClass::create() const { return maker ? maker() : OdRxObjectPtr(); }

OdRxObjectPtr OdRxClass::getX(const OdRxClass* key) const {
    for (const OdRxClass* c = this; c; c = c->parent) {
        const auto found = c->extensions.find(key);
        if (found != c->extensions.end())
            return found->second;
    }
    return {};
}

OdRxObjectPtr OdRxClass::addX(const OdRxClass* key, OdRxObject* extension) {
    OdRxObjectPtr old = delX(key);
    extensions[key] = OdRxObjectPtr(extension);
    return old;
}

OdRxObjectPtr OdRxClass::delX(const OdRxClass* key) {
    const auto found = extensions.find(key);
    if (found == extensions.end())
        return {};
    OdRxObjectPtr old = found->second;
    extensions.erase(found);
    return old;
}

void OdRxObject::addRef() { references.fetch_add(1, std::memory_order_relaxed); }

void OdRxObject::release() {
    if (references.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete this;
}

long OdRxObject::numRefs() const { return references.load(std::memory_order_relaxed); }

OdRxClass* OdRxObject::isA() const { return OdRxObject::desc(); }

OdRxObject* OdRxObject::queryX(const OdRxClass* wanted) const {
    if (isKindOf(wanted)) {
        auto* self = const_cast<OdRxObject*>(this);
        self->addRef();
        return self;
    }
    return isA()->getX(wanted).detach();
}

OdRxClass* OdRxObject::desc() {
    static OdRxClass descriptor(L"OdRxObject", nullptr);
    return &descriptor;
}
