// The lists of standard directories over the tree of stddirs.yaml: Lists/<section>/<number> with path, key
// and editable, and single directories in Dirs.
#pragma once

#include "host/dir_list.h"
#include "standin/params/mem_param.h"

#include <QString>

namespace standin {

// Stands at the beginning of a stored path for the places that differ from one installation to the next:
// "${data}" and "${root}". A path that begins with a "$" of its own is stored with two.
class PathWords {
public:
    PathWords(const QString& dataDir, const QString& rootDir);
    QString expanded(const QString& path) const;
    QString contracted(const QString& path) const;

private:
    struct Word {
        QString word;
        QString path;
    };
    std::vector<Word> words; // the longest path first
};

class StdDirs : public CKWUnknownImpl<IStdDirs> {
public:
    StdDirs(Ref<IParam> storeTree, PathWords pathWords) : tree(std::move(storeTree)), words(pathWords) {}
    // A single directory of that name, or else the first of the section's list.
    bool GetDir(const char* key, tagKWVARIANT* out, int) override;
    // Hands out a copy: what happens to it changes nothing here.
    bool GetDirList(const char* key, CKWVariant* out) override;
    // Entries whose path stays keep what else their sections hold, key and editable flag too, whatever the
    // elements say. False without a list.
    bool SetDirList(const char* key, const CKWVariant& value) override;

private:
    Ref<IParam> listSection(const char* key, int create);
    QString pathOf(IParam* entry) const;
    Ref<StdDirList> readList(IParam* section) const;

    Ref<IParam> tree;
    PathWords words;
};

} // namespace standin
