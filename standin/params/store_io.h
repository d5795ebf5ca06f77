// Access of the stores to the disk: whole files, written atomically under a lock, with a reason for each
// failure.
#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

namespace standin {

// What a store needs of its surroundings.
struct StoreIo {
    std::function<void(const QString& text)> reportProblem; // for the user; may be empty
    // The device that a file is written through; empty: a plain QSaveFile.
    std::function<std::unique_ptr<QSaveFile>(const QString& path)> newSaveFile;
    // Whether what another process wrote may come into the tree now: not while a dialog is open that writes
    // back all that it has read. Empty: always.
    std::function<bool()> isCalm;
    std::function<void()> takenIn; // something of another process came into the tree; may be empty
    int lockTimeout = 3000;        // milliseconds to wait for another process that writes the same file

    void report(const QString& text) const;
};

// A failure says why in `reason`. Only regular files of up to 16 MB are read: nothing is waited for.
std::optional<QByteArray> readWhole(const QString& path, QString& reason);
bool writeWhole(const StoreIo& io, const QString& path, const QByteArray& bytes, QString& reason);
// Keeps a copy as "<path>.<kind>-<n>" with the first free n, unless one of them has the same content. The
// name of the copy, or empty.
QString keepBeside(const QString& path, const QString& kind, const QByteArray& bytes, QString& reason);

} // namespace standin
