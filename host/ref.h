// The one smart pointer for the host's counted interfaces.
#pragma once

#include "host/unknown.h"

#include <cstddef>
#include <utility>

template <class T> class Ref {
public:
    Ref() = default;
    Ref(std::nullptr_t) {}
    // Shares an object: adds a reference.
    static Ref share(T* object) {
        if (object)
            object->AddRef();
        return Ref(object);
    }
    // Takes over the reference that a call has handed out.
    static Ref take(T* object) { return Ref(object); }
    Ref(const Ref& other) : object(other.object) {
        if (object)
            object->AddRef();
    }
    Ref(Ref&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
    template <class U> Ref(const Ref<U>& other) : object(other.get()) {
        if (object)
            object->AddRef();
    }
    ~Ref() {
        if (object)
            object->Release();
    }
    Ref& operator=(Ref other) noexcept {
        std::swap(object, other.object);
        return *this;
    }

    T* get() const { return object; }
    T* operator->() const { return object; }
    T& operator*() const { return *object; }
    explicit operator bool() const { return object != nullptr; }
    // Gives the reference away; the receiver releases it.
    T* detach() { return std::exchange(object, nullptr); }

private:
    explicit Ref(T* taken) : object(taken) {}
    T* object = nullptr;
};

// Asks an object for an interface; null when it has none or `object` is null.
template <class I> Ref<I> queryFor(IKWUnknown* object) {
    void* found = nullptr;
    if (object)
        object->QueryInterface(typeid(I), &found);
    return Ref<I>::take(static_cast<I*>(found));
}
