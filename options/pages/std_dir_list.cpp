#include "options/pages/std_dir_list.h"

std::vector<Ref<IStdDirInfo>> elementsOf(const Ref<StdDirList>& list) {
    std::vector<Ref<IStdDirInfo>> elements;
    if (!list || list->isClosed())
        return elements;
    const auto walk = Ref<CTEnum<IStdDirInfo*>>::take(list->newEnum());
    IStdDirInfo* info = nullptr;
    while (walk->Next(1, &info, nullptr))
        elements.push_back(Ref<IStdDirInfo>::take(info));
    return elements;
}

void appendTo(const Ref<StdDirList>& list, const Ref<IStdDirInfo>& info) {
    if (list)
        list->append(info.get());
}

void removeFrom(const Ref<StdDirList>& list, IStdDirInfo* info) {
    if (!list || list->isClosed())
        return;
    if (auto* node = list->find(info))
        list->unlink(node);
}
