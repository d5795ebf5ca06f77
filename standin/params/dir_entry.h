// One standard directory as the host's own lists hold it, and copies of such lists.
#pragma once

#include "host/dir_list.h"

namespace standin {

// Null texts give empty ones.
Ref<IStdDirInfo> newDirEntry(const char* key, const wchar_t* path, int editable);
// A new list of new elements; null for a null list, empty for a closed one.
Ref<StdDirList> copyOfList(const Ref<StdDirList>& list);

} // namespace standin
