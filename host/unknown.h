// Root of the host's interfaces. The identifier of an interface is its std::type_info.
#pragma once

#include <cstdint>
#include <typeinfo>

class IKWUnknown {
public:
    // Both return the new count. A call that hands out an interface hands out one reference.
    virtual std::int64_t AddRef() = 0;
    virtual std::int64_t Release() = 0;
    // 1 and a counted pointer in *out for a known interface; 0 and null for an unknown one. `out` may be
    // null, then only the answer counts.
    virtual int QueryInterface(const std::type_info& type, void** out) = 0;

protected:
    ~IKWUnknown() = default;
};

// Two libraries may carry a type_info of their own for one interface: equal names match, but for local types,
// which are only equal to themselves. std::type_info compares so; its name() hides the mark of a local type.
inline bool isInterface(const std::type_info& type, const std::type_info& wanted) { return type == wanted; }

// Counts references for an implementation of interface T, from 0. AddRef, Release and QueryInterface only
// call their internal namesakes, so that a subclass may replace those alone.
template <class T> class CKWCounted : public T {
public:
    std::int64_t AddRef() override { return internalAddRef(); }
    std::int64_t Release() override { return internalRelease(); }
    int QueryInterface(const std::type_info& type, void** out) override {
        return internalQueryInterface(type, out);
    }

protected:
    virtual ~CKWCounted() = default;
    virtual std::int64_t internalAddRef() { return ++refCount; }
    virtual std::int64_t internalRelease() {
        const std::int64_t left = --refCount;
        if (left == 0)
            delete this;
        return left;
    }
    virtual int internalQueryInterface(const std::type_info& type, void** out) = 0;

    // One branch of internalQueryInterface: hands out this object as I when I is what is asked for.
    template <class I> int answer(const std::type_info& type, void** out) {
        if (isInterface(type, typeid(I)))
            return handOut(static_cast<I*>(this), out);
        if (out)
            *out = nullptr;
        return 0;
    }

private:
    template <class I> int handOut(I* self, void** out) {
        if (out) {
            *out = self;
            this->AddRef();
        }
        return 1;
    }
    std::int64_t refCount = 0;
};

// The common implementation: answers T and IKWUnknown.
template <class T> class CKWUnknownImpl : public CKWCounted<T> {
protected:
    int internalQueryInterface(const std::type_info& type, void** out) override {
        return this->template answer<IKWUnknown>(type, out) || this->template answer<T>(type, out);
    }
};
