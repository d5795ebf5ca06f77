// Reads a system variable wherever the host itself follows one.
#pragma once

#include "sdk/rx/res_buf.h"

namespace standin {

// Of the drawing that `context` stands for, null for the current one. Null without a host or when there is
// no such variable.
OdResBufPtr readVariable(const wchar_t* name, OdRxObject* context = nullptr);

} // namespace standin
