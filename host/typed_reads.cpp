// A read looks at the type code that the store has given and never converts, so that a caller's default
// stands for a value of another type.
#include "host/typed_reads.h"

namespace {

int fetch(IParam* node, const char* name, CKWVariant& value) {
    return node ? node->getValue(name, &value) : 0;
}

template <class T> int readOnly(IParam* node, const char* name, T* out, unsigned short typeCode) {
    CKWVariant value;
    if (!fetch(node, name, value) || value.vt != typeCode)
        return 0;
    *out = static_cast<T>(value);
    return 1;
}

template <class T> int readInteger(IParam* node, const char* name, T* out) {
    CKWVariant value;
    if (!fetch(node, name, value) || !isIntegerType(value.vt))
        return 0;
    *out = static_cast<T>(value);
    return 1;
}

CXStringW wideTextOf(const CKWVariant& value) {
    if (value.vt == kVtString)
        return CXStringW(static_cast<char*>(value));
    return CXStringW(static_cast<wchar_t*>(value));
}

} // namespace

int readValue(IParam* node, const char* name, int* out) { return readInteger(node, name, out); }
int readValue(IParam* node, const char* name, unsigned int* out) { return readInteger(node, name, out); }
int readValue(IParam* node, const char* name, double* out) { return readOnly(node, name, out, kVtDouble); }
int readValue(IParam* node, const char* name, tagSIZE* out) { return readOnly(node, name, out, kVtSize); }
int readValue(IParam* node, const char* name, tagRSIZE* out) { return readOnly(node, name, out, kVtRSize); }
int readValue(IParam* node, const char* name, tagRPOINT* out) { return readOnly(node, name, out, kVtRPoint); }

int readValue(IParam* node, const char* name, CXString* out) {
    CKWVariant value;
    if (!fetch(node, name, value) || value.vt != kVtString)
        return 0;
    *out = static_cast<char*>(value);
    return 1;
}

int readValue(IParam* node, const char* name, CXStringW* out) {
    CKWVariant value;
    value.vt = kVtWideString; // the request for wide text; whether one was found is told by the result alone
    if (!fetch(node, name, value) || value.vt == kVtEmpty)
        return 0;
    *out = wideTextOf(value);
    return out->isEmpty() ? 0 : 1;
}

std::vector<std::string> childNames(IParam* node) {
    std::vector<std::string> names;
    if (!node)
        return names;
    const auto children = Ref<IParamEnum>::take(node->newEnum());
    const char* name = nullptr;
    while (children && children->next(1, &name, 0))
        names.emplace_back(name);
    return names;
}

Ref<IParam> openChild(IParam* node, const char* name, int create) {
    return node ? Ref<IParam>::take(node->openSection(name, create)) : Ref<IParam>();
}
