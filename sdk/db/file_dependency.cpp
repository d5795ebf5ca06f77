#include "sdk/db/file_dependency.h"

#include <algorithm>

namespace {

auto sameEntry(const OdString& feature, const OdString& fullFileName) {
    return [&feature, &fullFileName](const OdFileDependencyInfo& info) {
        return info.feature == feature && info.fullFileName == fullFileName;
    };
}

} // namespace

unsigned OdFileDependencyManager::createEntry(const OdFileDependencyInfo& info) {
    const auto found =
        std::find_if(entries.begin(), entries.end(), sameEntry(info.feature, info.fullFileName));
    if (found == entries.end()) {
        entries.push_back(info);
        return countEntries();
    }
    *found = info;
    return static_cast<unsigned>(found - entries.begin()) + 1;
}

unsigned OdFileDependencyManager::getEntry(const OdString& feature, const OdString& fullFileName,
                                           OdFileDependencyInfo& info) const {
    const auto found = std::find_if(entries.begin(), entries.end(), sameEntry(feature, fullFileName));
    if (found == entries.end())
        return 0;
    info = *found;
    return static_cast<unsigned>(found - entries.begin()) + 1;
}

void OdFileDependencyManager::eraseEntry(const OdString& feature, const OdString& fullFileName) {
    entries.erase(std::remove_if(entries.begin(), entries.end(), sameEntry(feature, fullFileName)),
                  entries.end());
}
