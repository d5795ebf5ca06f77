// The few things that the page does with a section's list. A missing or closed list counts as empty, and
// takes nothing.
#pragma once

#include "options/pages/std_dir_item.h"

#include <vector>

std::vector<Ref<IStdDirInfo>> elementsOf(const Ref<StdDirList>& list);
void appendTo(const Ref<StdDirList>& list, const Ref<IStdDirInfo>& info);
void removeFrom(const Ref<StdDirList>& list, IStdDirInfo* info); // the node of that very object
