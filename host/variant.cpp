// Ownership in a variant: texts are copied, interfaces are counted, everything else is plain data.
#include "host/variant.h"

#include "host/unknown.h"
#include "sdk/rx/alloc.h"

#include <cstring>
#include <cwchar>
#include <new>

namespace {

template <class Char> Char* copyText(const Char* text, std::size_t length) {
    auto* copy = static_cast<Char*>(odrxAlloc((length + 1) * sizeof(Char)));
    if (!copy)
        throw std::bad_alloc();
    std::memcpy(copy, text, length * sizeof(Char));
    copy[length] = 0;
    return copy;
}
char* copyText(const char* text) { return text ? copyText(text, std::strlen(text)) : copyText("", 0); }
wchar_t* copyText(const wchar_t* text) { return text ? copyText(text, std::wcslen(text)) : copyText(L"", 0); }

} // namespace

void KWVariantInit(tagKWVARIANT* variant) { std::memset(static_cast<void*>(variant), 0, sizeof *variant); }

void KWVariantClear(tagKWVARIANT* variant) {
    if (variant->vt == kVtString)
        odrxFree(variant->text);
    else if (variant->vt == kVtWideString)
        odrxFree(variant->wideText);
    else if (variant->vt == kVtUnknown && variant->unknown)
        variant->unknown->Release();
    KWVariantInit(variant);
}

void KWVariantCopy(tagKWVARIANT* to, const tagKWVARIANT& from) {
    tagKWVARIANT copy = from;
    if (from.vt == kVtString)
        copy.text = copyText(from.text);
    else if (from.vt == kVtWideString)
        copy.wideText = copyText(from.wideText);
    else if (from.vt == kVtUnknown && from.unknown)
        from.unknown->AddRef();
    *to = copy;
}

CKWVariant::CKWVariant(const tagKWVARIANT& other) { KWVariantCopy(this, other); }
CKWVariant::CKWVariant(const CKWVariant& other) : tagKWVARIANT() { KWVariantCopy(this, other); }
CKWVariant::CKWVariant(const CXStringW& newText) {
    KWVariantInit(this);
    *this = newText;
}
CKWVariant::CKWVariant(int value, unsigned short typeCode) {
    KWVariantInit(this);
    setInteger(value, typeCode);
}

CKWVariant& CKWVariant::setInteger(std::int64_t value, unsigned short typeCode) {
    Clear();
    vt = typeCode;
    integer = value;
    return *this;
}

CKWVariant& CKWVariant::operator=(int value) { return setInteger(value, kVtInt); }
CKWVariant& CKWVariant::operator=(unsigned int value) { return setInteger(value, kVtUInt); }
CKWVariant& CKWVariant::operator=(unsigned short value) { return setInteger(value, kVtUInt16); }

CKWVariant& CKWVariant::operator=(double value) {
    Clear();
    vt = kVtDouble;
    real = value;
    return *this;
}

CKWVariant& CKWVariant::operator=(const char* newText) {
    char* copy = copyText(newText);
    Clear();
    vt = kVtString;
    text = copy;
    return *this;
}

CKWVariant& CKWVariant::operator=(const wchar_t* newText) {
    wchar_t* copy = copyText(newText);
    Clear();
    vt = kVtWideString;
    wideText = copy;
    return *this;
}

CKWVariant& CKWVariant::operator=(const CXString& newText) { return *this = newText.c_str(); }
CKWVariant& CKWVariant::operator=(const CXStringW& newText) { return *this = newText.c_str(); }

CKWVariant& CKWVariant::operator=(IKWUnknown* object) {
    if (object)
        object->AddRef();
    Clear();
    vt = kVtUnknown;
    unknown = object;
    return *this;
}

CKWVariant& CKWVariant::operator=(const tagSIZE& value) {
    Clear();
    vt = kVtSize;
    size = value;
    return *this;
}

CKWVariant& CKWVariant::operator=(const tagRSIZE& value) {
    Clear();
    vt = kVtRSize;
    rsize = value;
    return *this;
}

CKWVariant& CKWVariant::operator=(const tagRPOINT& value) {
    Clear();
    vt = kVtRPoint;
    rpoint = value;
    return *this;
}

CKWVariant& CKWVariant::operator=(const CKWVariant& other) {
    if (this != &other) {
        tagKWVARIANT copy;
        KWVariantInit(&copy);
        KWVariantCopy(&copy, other);
        Clear();
        static_cast<tagKWVARIANT&>(*this) = copy;
    }
    return *this;
}

CKWVariant::operator int() const { return isIntegerType(vt) ? static_cast<int>(integer) : 0; }
CKWVariant::operator unsigned int() const {
    return isIntegerType(vt) ? static_cast<unsigned int>(integer) : 0;
}
CKWVariant::operator double() const { return vt == kVtDouble ? real : 0.0; }
CKWVariant::operator char*() const { return vt == kVtString ? text : nullptr; }
CKWVariant::operator wchar_t*() const { return vt == kVtWideString ? wideText : nullptr; }
CKWVariant::operator IKWUnknown*() const { return vt == kVtUnknown ? unknown : nullptr; }
CKWVariant::operator tagSIZE() const { return vt == kVtSize ? size : tagSIZE{0, 0}; }
CKWVariant::operator tagRSIZE() const { return vt == kVtRSize ? rsize : tagRSIZE{0, 0}; }
CKWVariant::operator tagRPOINT() const { return vt == kVtRPoint ? rpoint : tagRPOINT{0, 0}; }
