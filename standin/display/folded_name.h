// Names of tables as keys: their letter case doesn't count.
#pragma once

#include "sdk/rx/od_string.h"

#include <cwctype>
#include <string>

namespace standin {

inline std::wstring foldedName(const OdString& name) {
    std::wstring text = name.c_str();
    for (wchar_t& letter : text)
        letter = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(letter)));
    return text;
}

} // namespace standin
