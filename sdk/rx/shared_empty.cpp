#include "sdk/rx/shared_empty.h"

void* odrxSharedEmptyText() {
    static wchar_t end[1] = L"";
    return end;
}
