// What the page does to a section's list. A missing or closed list takes nothing.
#pragma once

#include "host/dir_list.h"

void appendTo(const Ref<StdDirList>& list, const Ref<IStdDirInfo>& info);
void removeFrom(const Ref<StdDirList>& list, IStdDirInfo* info); // the node of that very object
