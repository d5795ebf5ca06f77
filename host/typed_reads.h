// The typed reads of a parameter node, and the write beside them. Each read returns 1 with the value stored,
// or 0 with the target untouched, but for wide text as told there. A null node reads as nothing and takes
// nothing.
#pragma once

#include "host/param.h"

#include <string>
#include <vector>

int readValue(IParam* node, const char* name, int* out);          // codes 1 to 7
int readValue(IParam* node, const char* name, unsigned int* out); // codes 1 to 7
int readValue(IParam* node, const char* name, double* out);       // code 8 only
int readValue(IParam* node, const char* name, CXString* out);     // code 10 only
int readValue(IParam* node, const char* name, tagSIZE* out);      // code 11 only
int readValue(IParam* node, const char* name, tagRSIZE* out);     // code 12 only
int readValue(IParam* node, const char* name, tagRPOINT* out);    // code 14 only
// Any value that is found replaces the target: text of either width as it is, everything else as the empty
// text. The result is 1 only if the new text isn't empty.
int readValue(IParam* node, const char* name, CXStringW* out);

// Sets the value under the type code of `Value`: 5 for int, 6 for unsigned int, 4 for unsigned short, 8 for
// double, 10 and 19 for text; a variant goes as it is. 1 when stored.
template <class Value> int writeValue(IParam* node, const char* name, const Value& value) {
    CKWVariant variant;
    variant = value;
    return node ? node->setValue(name, &variant) : 0;
}

// The child names of a node, in the store's order, copied so that they outlive the enumerator.
std::vector<std::string> childNames(IParam* node);
// openSection without creating; null for a null node.
Ref<IParam> openChild(IParam* node, const char* name, int create = 0);
