// Who uses a root directory: every program that keeps its stores there holds a lock file in it as long as it
// runs, so that a second one can say so at its start.
#pragma once

#include <QLockFile>
#include <QString>
#include <memory>

namespace standin {

// The locks only tell; nobody is kept out. What a crashed program has left counts as nothing. Where no lock
// can be made nothing is told either: that a store can't be written is told by the store.
class RootUse {
public:
    explicit RootUse(const QString& rootDir); // makes the directory
    // For the user: who else is there and what that means. Empty when the program is alone.
    const QString& notice() const { return text; }

private:
    void lookAt(const QString& lockFile);
    void noteOther(const QLockFile& lock, const QString& lockFile);

    const QString root;
    std::unique_ptr<QLockFile> own;
    QString text;
};

} // namespace standin
