// Root of the drawing SDK's object model: counted objects, class descriptors, protocol extensions and casts.
#pragma once

#include "sdk/rx/od_error.h"
#include "sdk/rx/smart_ptr.h"

#include <atomic>
#include <map>

class OdRxObject;
using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

// The descriptor of one class. Descriptors are static and live for the whole process.
class OdRxClass {
public:
    using Maker = OdRxObjectPtr (*)();
    OdRxClass(const wchar_t* className, OdRxClass* parentClass, Maker makeObject = nullptr)
        : classTitle(className), parent(parentClass), maker(makeObject) {}
    OdRxClass(const OdRxClass&) = delete;
    OdRxClass& operator=(const OdRxClass&) = delete;

    OdString name() const { return classTitle; }
    OdRxClass* myParent() const { return parent; }
    bool isDerivedFrom(const OdRxClass* ancestor) const;
    OdRxObjectPtr create() const; // null for an abstract class

    // Protocol extensions: an object that other code hangs on a class. getX looks at this class and then at
    // its parents. addX replaces an extension of the same key and returns the old one.
    OdRxObjectPtr getX(const OdRxClass* key) const;
    OdRxObjectPtr addX(const OdRxClass* key, OdRxObject* extension);
    OdRxObjectPtr delX(const OdRxClass* key);

private:
    OdString classTitle;
    OdRxClass* parent;
    Maker maker;
    std::map<const OdRxClass*, OdRxObjectPtr> extensions;
};

class OdRxObject {
public:
    OdRxObject() = default;
    OdRxObject(const OdRxObject&) {}
    OdRxObject& operator=(const OdRxObject&) { return *this; }
    virtual ~OdRxObject() = default;

    virtual void addRef();
    virtual void release(); // destroys the object when the last reference goes
    virtual long numRefs() const;
    virtual OdRxClass* isA() const;
    // The object itself when it is of `wanted`, else the extension of its class for it, else null. The result
    // carries one reference for the caller.
    virtual OdRxObject* queryX(const OdRxClass* wanted) const;
    bool isKindOf(const OdRxClass* wanted) const { return isA()->isDerivedFrom(wanted); }

    static OdRxClass* desc();

private:
    std::atomic<int> references{0};
};

// An object that is a member of another one, or static: counting is off.
template <class T> class OdStaticRxObject : public T {
public:
    using T::T;
    void addRef() override {}
    void release() override {}
    long numRefs() const override { return 1; }
};

// Declares desc() and isA() of a class; the definition stands in one source file.
#define ODRX_DECLARE_CLASS(Class)                                                                            \
public:                                                                                                      \
    static OdRxClass* desc();                                                                                \
    OdRxClass* isA() const override { return Class::desc(); }

#define ODRX_DEFINE_CLASS(Class, Parent)                                                                     \
    OdRxClass* Class::desc() {                                                                               \
        static OdRxClass descriptor(L"" #Class, Parent::desc());                                             \
        return &descriptor;                                                                                  \
    }

#define ODRX_DEFINE_CLASS_WITH_MAKER(Class, Parent)                                                          \
    OdRxClass* Class::desc() {                                                                               \
        static OdRxClass descriptor(L"" #Class, Parent::desc(), [] { return OdRxObjectPtr(new Class); });    \
        return &descriptor;                                                                                  \
    }

// Cast with a null result for a wrong class.
template <class T> OdSmartPtr<T> odrxQuery(const OdRxObject* object) {
    return OdSmartPtr<T>(object ? static_cast<T*>(object->queryX(T::desc())) : nullptr, kOdRxObjAttach);
}

// Cast that keeps null and throws OdError_NotThatKindOfClass, with both classes, for a wrong class.
template <class T, class U> OdSmartPtr<T> odrxCast(const OdSmartPtr<U>& object) {
    if (object.isNull())
        return {};
    OdSmartPtr<T> result = odrxQuery<T>(object.get());
    if (result.isNull())
        throw OdError_NotThatKindOfClass(object->isA(), T::desc());
    return result;
}
