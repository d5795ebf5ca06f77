// The user's profile below a root directory. All who ask for the same root share one tree.
#pragma once

#include "standin/params/in_file.h"

namespace standin {

using FileProfile = InFile<ParamOf<IProfile>>;

// What every profile that is opened from now on starts with: the shipped default (may be empty), how files
// are accessed, what is remembered as in StoreFiles, and the ranges of numbers. A number beyond its range is
// told once, stays in the file, and is handed out as the end of the range.
struct ProfileDefaults {
    QString shipped;
    StoreIo io;
    std::vector<std::string> remembered = {};
    ValueRanges ranges = {};
};
void setProfileDefaults(ProfileDefaults defaults);

// The profile in "<rootDir>/profile.yaml"; null when `rootDir` is empty or no folder can be there.
Ref<FileProfile> openProfile(const QString& rootDir);

} // namespace standin
