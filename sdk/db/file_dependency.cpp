// The list of files that a drawing depends on, with an index by feature and name.
#include "sdk/db/file_dependency.h"

unsigned OdFileDependencyManager::createEntry(const OdFileDependencyInfo& info) {
    const auto [found, isNew] = positions.try_emplace(Key(info.feature, info.fullFileName), entries.size());
    if (isNew)
        entries.push_back(info);
    else
        entries[found->second] = info;
    return static_cast<unsigned>(found->second) + 1;
}

unsigned OdFileDependencyManager::getEntry(const OdString& feature, const OdString& fullFileName,
                                           OdFileDependencyInfo& info) const {
    const auto found = positions.find(Key(feature, fullFileName));
    if (found == positions.end())
        return 0;
    info = entries[found->second];
    return static_cast<unsigned>(found->second) + 1;
}

// The entries behind the erased one move up.
void OdFileDependencyManager::eraseEntry(const OdString& feature, const OdString& fullFileName) {
    const auto found = positions.find(Key(feature, fullFileName));
    if (found == positions.end())
        return;
    const std::size_t position = found->second;
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(position));
    positions.erase(found);
    for (auto& [key, index] : positions)
        if (index > position)
            --index;
}
