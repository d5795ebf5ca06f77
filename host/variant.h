// The host's tagged variant, its type codes and the small records that it carries.
#pragma once

#include "host/xstring.h"

#include <cstdint>

class IKWUnknown;

struct tagSIZE {
    std::int32_t cx, cy;
};
struct tagRSIZE {
    double cx, cy;
};
struct tagPOINT {
    std::int32_t x, y;
};
struct tagRPOINT {
    double x, y;
};

enum KWVariantType : unsigned short {
    kVtEmpty = 0,
    kVtInt8 = 1,
    kVtUInt8 = 2,
    kVtInt16 = 3,
    kVtUInt16 = 4,
    kVtInt = 5,
    kVtUInt = 6,
    kVtInt64 = 7,
    kVtDouble = 8,
    kVtFloat = 9,
    kVtString = 10,
    kVtSize = 11,
    kVtRSize = 12,
    kVtPoint = 13,
    kVtRPoint = 14,
    kVtRect = 15,
    kVtRRect = 16,
    kVtBlob = 17,
    kVtUnknown = 18,
    kVtWideString = 19
};

inline bool isIntegerType(unsigned short typeCode) { return typeCode >= kVtInt8 && typeCode <= kVtInt64; }

// A plain record. Strings are owned by it and freed by KWVariantClear; an interface in it is counted.
struct tagKWVARIANT {
    unsigned short vt;
    union {
        std::int64_t integer; // every width of the integer family
        double real;
        char* text;
        wchar_t* wideText;
        tagSIZE size;
        tagRSIZE rsize;
        tagRPOINT rpoint;
        IKWUnknown* unknown;
    };
};

void KWVariantInit(tagKWVARIANT* variant); // to empty, without freeing anything
void KWVariantClear(tagKWVARIANT* variant);
void KWVariantCopy(tagKWVARIANT* to, const tagKWVARIANT& from); // `to` must be initialised or cleared

class CKWVariant : public tagKWVARIANT {
public:
    CKWVariant() { KWVariantInit(this); }
    CKWVariant(const tagKWVARIANT& other);
    CKWVariant(const CKWVariant& other);
    CKWVariant(const CXStringW& text);
    CKWVariant(int value, unsigned short typeCode);
    ~CKWVariant() { Clear(); }

    CKWVariant& operator=(int value);
    CKWVariant& operator=(unsigned int value);
    CKWVariant& operator=(unsigned short value);
    CKWVariant& operator=(double value);
    CKWVariant& operator=(const char* text);
    CKWVariant& operator=(const wchar_t* text);
    CKWVariant& operator=(const CXString& text);
    CKWVariant& operator=(const CXStringW& text);
    CKWVariant& operator=(IKWUnknown* object); // adds a reference
    CKWVariant& operator=(const tagSIZE& value);
    CKWVariant& operator=(const tagRSIZE& value);
    CKWVariant& operator=(const tagRPOINT& value);
    CKWVariant& operator=(const CKWVariant& other);

    // Reads; a variant of another type gives 0, null or zeroes. Pointers stay the variant's own.
    operator int() const;
    operator unsigned int() const;
    operator double() const;
    operator char*() const;
    operator wchar_t*() const;
    operator IKWUnknown*() const;
    operator tagSIZE() const;
    operator tagRSIZE() const;
    operator tagRPOINT() const;
    void Clear() { KWVariantClear(this); }

private:
    CKWVariant& setInteger(std::int64_t value, unsigned short typeCode);
};
