// Appends to and removes from a list that may be missing or closed.
#include "options/pages/directories/std_dir_list.h"

void appendTo(const Ref<StdDirList>& list, const Ref<IStdDirInfo>& info) {
    if (list)
        list->append(info.get());
}

void removeFrom(const Ref<StdDirList>& list, IStdDirInfo* info) {
    if (auto* node = list ? list->find(info) : nullptr) // a closed one has none
        list->unlink(node);
}
