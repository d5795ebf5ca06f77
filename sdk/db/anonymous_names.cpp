// Hands out the numbers of anonymous groups, one counter for all drawings of the program.
#include "sdk/db/anonymous_names.h"

#include <cwchar>

namespace {
long highestNumber = 0;
}

OdString odDbNewAnonymousName() { return OdString(L"*A") + OdString(std::to_wstring(++highestNumber)); }

void odDbNoteAnonymousName(const OdString& name) {
    const std::wstring& text = name.wide();
    if (text.size() < 3 || text.size() > 11 || text[0] != L'*' || (text[1] != L'A' && text[1] != L'a'))
        return;
    wchar_t* end = nullptr;
    const long number = std::wcstol(text.c_str() + 2, &end, 10);
    if (*end == L'\0' && number > highestNumber)
        highestNumber = number;
}
