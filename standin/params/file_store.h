// Keeps a parameter tree in a file of the user: read once, written once for each turn of the event loop in
// which it changed.
#pragma once

#include "standin/params/section.h"
#include "standin/params/store_io.h"

#include <QObject>
#include <string>
#include <vector>

namespace standin {

struct StoreFiles {
    QString shipped;    // read-only; serves while the user has no file, or a broken one; may be empty
    QString user;       // the whole tree, once the user has changed anything
    int wholeDepth = 0; // for merging with another process: see mergeInto
    // Paths of sections and values where programs remember by themselves how they looked. What one of two
    // processes remembers gives way to the other's and nobody is told.
    std::vector<std::string> remembered = {};
};

// The tree is loaded by the constructor. Faults of the files and failed writes go to StoreIo::reportProblem;
// a failed write is tried again with the next change and at the end. A user's file that is broken is copied
// beside as "name.broken-<n>" before it is first overwritten; a version of another process of which not
// everything could be merged is copied as "name.other-<n>", and what gave way is told.
class FileStore : public QObject {
    Q_OBJECT
public:
    // `root` must outlive the store.
    FileStore(Section& root, TreeRulesPtr treeRules, StoreFiles storeFiles, StoreIo storeIo);
    ~FileStore() override; // flushes
    bool flush();          // writes what has changed; false when that failed

private:
    void load();
    bool loadFile(const QString& path);
    void noteChange();
    bool write(QString& reason);
    bool addOthers(QByteArray& ours, QString& reason);
    bool keepBroken(const QByteArray& bytes, QString& reason);
    bool mergeOthers(QByteArray& ours, const QByteArray& theirs, QString& reason);
    void takeInOthers();

    Section& root;
    TreeRulesPtr rules;
    StoreFiles files;
    StoreIo io;
    QByteArray known; // what the user's file held when this process last read or wrote it
    bool knownFaulty = false;
    QByteArray base;       // the tree of that moment, as text
    bool isBehind = false; // the file has more of others than the tree
    bool dirty = false;
    bool scheduled = false;
    bool busy = false; // changes that come from the file itself are none
};

} // namespace standin
