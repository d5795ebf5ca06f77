// The files a drawing depends on: where each was saved and where it was found.
#pragma once

#include "sdk/rx/od_string.h"

#include <map>
#include <utility>
#include <vector>

struct OdFileDependencyInfo {
    OdString feature;      // "Acad:XRef" for external references
    OdString fullFileName; // as the drawing saves it
    OdString fileName;     // without folder
    OdString foundPath;    // folder with its delimiter, empty while the file was not found
};

class OdFileDependencyManager {
public:
    // Index of the new or the changed entry, from 1.
    unsigned createEntry(const OdFileDependencyInfo& info);
    // Index of the entry, from 1; 0 and `info` untouched when there is none. Full names are compared as they
    // stand.
    unsigned getEntry(const OdString& feature, const OdString& fullFileName,
                      OdFileDependencyInfo& info) const;
    void eraseEntry(const OdString& feature, const OdString& fullFileName);
    unsigned countEntries() const { return static_cast<unsigned>(entries.size()); }

private:
    using Key = std::pair<OdString, OdString>; // feature and full file name
    std::vector<OdFileDependencyInfo> entries;
    std::map<Key, std::size_t> positions; // in `entries`
};
