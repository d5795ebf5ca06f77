// Former versions of drawing files, kept below the root directory: the files in one folder for each drawing,
// the reasons in one index beside the folders, so that a folder that vanished is noticed.
#pragma once

#include "standin/params/in_file.h"

#include <optional>
#include <vector>

namespace standin {

struct FileVersion {
    QString file;   // may be missing
    QString reason; // empty when none is known
};

// What add() has done, so that it can be taken back.
struct KeptVersion {
    QString drawing, name;
    bool isNew = true;
    QString formerReason; // of a version that was there already
};

class VersionStore {
public:
    VersionStore(const QString& rootDir, StoreIo storeIo);

    // Where the versions of a drawing are kept, whether or not there are any.
    QString folderOf(const QString& drawing) const;
    // The oldest first. Those whose file is gone are among them, and files that the index does not know.
    std::vector<FileVersion> versionsOf(const QString& drawing) const;
    // Keeps a copy of the drawing's file as it is on the disk, with its time. A drawing that has no file yet
    // leaves nothing to keep; a file that is the latest version already only takes the reason. Problems are
    // told to the user; nothing is given back when there is no version.
    std::optional<KeptVersion> add(const QString& drawing, const QString& reason);
    // What add() has kept is needed after all: removes the oldest versions past `maximum`.
    void settle(const QString& drawing, int maximum);
    // It is not needed: the drawing's file was not written after all.
    void takeBack(const KeptVersion& kept);

private:
    void tellIfVanished(const QString& drawing) const;
    std::optional<KeptVersion> copyOf(const QString& drawing) const;
    void forget(const KeptVersion& kept);
    void note(const QString& drawing, const QString& name, const QString& reason);
    // Takes the oldest versions past `maximum` out of the index; their files are still there.
    QStringList forgetOldest(const QString& drawing, int maximum);
    void removeFiles(const QStringList& files) const;

    QString root;
    StoreIo io;
    Ref<InFile<MemParam>> index;
};

} // namespace standin
