// The parameters of a run of a group command.
#pragma once

#include "host/typed_reads.h"

constexpr const char* kGroupNameParam = "GroupName"; // the only key in use

// Non-zero when a non-empty text was read; null parameters hold none.
inline int readStringParam(IParam* params, const char* key, CXStringW& out) {
    return readValue(params, key, &out);
}
