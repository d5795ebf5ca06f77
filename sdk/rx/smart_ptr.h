// Counted pointer to an object of the drawing SDK. Making one from a raw pointer adds a reference; attach
// takes over the reference that a factory handed out. Using a null pointer throws.
#pragma once

#include "sdk/rx/od_error.h"

#include <cstddef>
#include <utility>

enum OdRxObjMod { kOdRxObjAttach = 0 };

template <class T> class OdSmartPtr {
public:
    OdSmartPtr() = default;
    OdSmartPtr(std::nullptr_t) {}
    OdSmartPtr(T* raw) : object(raw) { retain(); }
    OdSmartPtr(T* raw, OdRxObjMod) : object(raw) {}
    OdSmartPtr(const OdSmartPtr& other) : object(other.object) { retain(); }
    OdSmartPtr(OdSmartPtr&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
    template <class U> OdSmartPtr(const OdSmartPtr<U>& other) : object(other.get()) { retain(); }
    ~OdSmartPtr() { drop(); }

    OdSmartPtr& operator=(OdSmartPtr other) noexcept {
        std::swap(object, other.object);
        return *this;
    }
    void attach(T* raw) {
        drop();
        object = raw;
    }
    T* detach() { return std::exchange(object, nullptr); }
    void release() {
        drop();
        object = nullptr;
    }

    T* get() const { return object; }
    bool isNull() const { return object == nullptr; }
    explicit operator bool() const { return object != nullptr; }
    // Throws OdError with eNullObjectPointer when the pointer is null.
    T* operator->() const { return &**this; }
    T& operator*() const {
        if (!object)
            throw OdError(eNullObjectPointer);
        return *object;
    }
    friend bool operator==(const OdSmartPtr& a, const OdSmartPtr& b) { return a.object == b.object; }
    friend bool operator!=(const OdSmartPtr& a, const OdSmartPtr& b) { return a.object != b.object; }

private:
    void retain() const {
        if (object)
            object->addRef();
    }
    void drop() const {
        if (object)
            object->release();
    }
    T* object = nullptr;
};
