// Loading, collecting changes, and writing of a store.
#include "standin/params/file_store.h"

#include "standin/params/store_merge.h"
#include "standin/params/yaml_tree.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>
#include <cerrno>

namespace standin {

namespace {

const int calmCheck = 200;   // milliseconds between two looks whether a dialog is still open
const int longestValue = 80; // characters of a value that is told
const int mostLines = 10;    // values that are told one by one

QByteArray bytesOf(const Section& section) { return QByteArray::fromStdString(writeYaml(section)); }

YamlResult parsed(const QByteArray& bytes, const QString& path) {
    return parseYaml(bytes.toStdString(), QDir::toNativeSeparators(path).toStdString());
}

QString lockReason(const QLockFile& lock) {
    if (lock.error() == QLockFile::LockFailedError)
        return FileStore::tr("another program is writing it");
    return FileStore::tr("its folder cannot be written");
}

// A holder signs its lock with a line for its process and more for its machine.
bool isSigned(const QString& lockFile) {
    QString unread;
    const QByteArray lines = readWhole(lockFile, unread).value_or(QByteArray());
    return lines.endsWith('\n') && lines.count('\n') >= 3;
}

// A process that was killed while it made its lock leaves one that names nobody. Who holds a lock signs it at
// once, so one that stayed unsigned for as long as we wait has no holder.
bool takeLock(QLockFile& lock, const QString& path, int timeout) {
    if (lock.tryLock(timeout))
        return true;
    const qint64 age = QFileInfo(path).lastModified().msecsTo(QDateTime::currentDateTime());
    return !isSigned(path) && age >= timeout && lock.removeStaleLockFile() && lock.tryLock(timeout);
}

// A path is in a section when it is the section's own or goes on below it.
bool isIn(const std::string& path, const std::string& section) {
    return path.compare(0, section.size(), section) == 0 &&
           (path.size() == section.size() || path[section.size()] == '/');
}

// What a user misses of the other's changes.
std::vector<Overruled> missed(std::vector<Overruled> overruled, const std::vector<std::string>& remembered) {
    const auto isRemembered = [&remembered](const Overruled& change) {
        return std::any_of(remembered.begin(), remembered.end(),
                           [&change](const std::string& section) { return isIn(change.path, section); });
    };
    overruled.erase(std::remove_if(overruled.begin(), overruled.end(), isRemembered), overruled.end());
    return overruled;
}

// Without the tag of its type, and cut when it is long: the whole of it is in the copy.
QString shown(const std::string& value) {
    QString text = QString::fromStdString(value);
    if (text.startsWith(QLatin1Char('!')))
        text.remove(0, text.indexOf(QLatin1Char(' ')) + 1);
    return text.size() > longestValue ? text.left(longestValue) + QStringLiteral("...") : text;
}

QString lineOf(const Overruled& change) {
    const QString path = QString::fromStdString(change.path);
    if (!change.value)
        return FileStore::tr("%1 (removed)").arg(path);
    return change.whole ? FileStore::tr("%1 (all of it)").arg(path)
                        : FileStore::tr("%1: %2").arg(path, shown(*change.value));
}

QString listOf(const std::vector<Overruled>& changes) {
    QStringList lines;
    for (const Overruled& change : changes)
        if (!change.path.empty() && lines.size() < mostLines)
            lines << lineOf(change);
    if (lines.isEmpty())
        return {};
    if (int(changes.size()) > mostLines)
        lines << FileStore::tr("... and %1 more").arg(int(changes.size()) - mostLines);
    return QLatin1Char('\n') +
           FileStore::tr("You have changed the same; yours now stand in place of these:") +
           QLatin1Char('\n') + lines.join(QLatin1Char('\n'));
}

} // namespace

FileStore::FileStore(Section& rootSection, TreeRulesPtr treeRules, StoreFiles storeFiles, StoreIo storeIo)
    : root(rootSection), rules(std::move(treeRules)), files(std::move(storeFiles)), io(std::move(storeIo)) {
    load();
    base = bytesOf(root);
    rules->changed = [this] { noteChange(); };
    if (qApp)
        connect(qApp, &QCoreApplication::aboutToQuit, this, &FileStore::flush);
}

FileStore::~FileStore() {
    flush();
    rules->changed = nullptr;
}

void FileStore::load() {
    if (QFileInfo::exists(files.user) && loadFile(files.user))
        return;
    if (!files.shipped.isEmpty())
        loadFile(files.shipped);
}

// False when the file serves for nothing. A fault in single entries leaves the rest to be used.
bool FileStore::loadFile(const QString& path) {
    QString reason;
    const auto bytes = readWhole(path, reason);
    if (!bytes) {
        io.report(tr("%1 cannot be read: %2").arg(QDir::toNativeSeparators(path), reason));
        return false;
    }
    const YamlResult result = parsed(*bytes, path);
    if (path == files.user) {
        known = *bytes;
        knownFaulty = !result.clean();
    }
    if (!result.clean())
        io.report(QString::fromStdString(result.report()));
    if (result.problem && path == files.user)
        return false;
    root.copyFrom(result.tree->section());
    return true;
}

void FileStore::noteChange() {
    if (busy)
        return;
    dirty = true;
    if (scheduled)
        return;
    scheduled = true;
    QTimer::singleShot(0, this, &FileStore::flush);
}

bool FileStore::flush() {
    scheduled = false;
    if (!dirty || busy)
        return !dirty;
    busy = true;
    QString reason;
    dirty = !write(reason);
    busy = false;
    takeInOthers();
    if (dirty)
        io.report(tr("%1 could not be written: %2.\nYour changes are kept until the program ends.")
                      .arg(QDir::toNativeSeparators(files.user), reason));
    return !dirty;
}

bool FileStore::write(QString& reason) {
    const QByteArray bytes = bytesOf(root);
    if (bytes == base)
        return true; // everything was set to what it was
    if (!QDir().mkpath(QFileInfo(files.user).path())) {
        reason = tr("its folder cannot be made: %1").arg(qt_error_string(errno));
        return false;
    }
    const QString lockFile = files.user + QStringLiteral(".lock");
    QLockFile lock(lockFile);
    if (!takeLock(lock, lockFile, io.lockTimeout)) {
        reason = lockReason(lock);
        return false;
    }
    QByteArray all = bytes;
    if (!addOthers(all, reason) || !writeWhole(io, files.user, all, reason))
        return false;
    known = all;
    base = bytes;
    knownFaulty = false;
    isBehind = all != bytes;
    return true;
}

// What others wrote comes into the tree while nobody holds values that were read before it.
void FileStore::takeInOthers() {
    if (!isBehind || dirty)
        return;
    if (io.isCalm && !io.isCalm()) {
        QTimer::singleShot(calmCheck, this, &FileStore::takeInOthers);
        return;
    }
    const QScopedValueRollback<bool> own(busy, true);
    const YamlResult before = parsed(base, files.user), now = parsed(known, files.user);
    mergeInto(root, before.tree->section(), now.tree->section(), files.wholeDepth);
    base = bytesOf(root);
    isBehind = false;
    if (io.takenIn)
        io.takenIn();
}

// Looks at the file as it is now: nothing in it may be overwritten unseen.
bool FileStore::addOthers(QByteArray& ours, QString& reason) {
    if (!QFileInfo::exists(files.user))
        return true;
    const auto bytes = readWhole(files.user, reason);
    if (!bytes)
        return false;
    if (*bytes == known && !knownFaulty && !isBehind)
        return true;
    const bool isClean = parsed(*bytes, files.user).clean();
    return isClean ? mergeOthers(ours, *bytes, reason) : keepBroken(*bytes, reason);
}

bool FileStore::keepBroken(const QByteArray& bytes, QString& reason) {
    const QString copy = keepBeside(files.user, QStringLiteral("broken"), bytes, reason);
    if (!copy.isEmpty())
        io.report(tr("%1 was not readable as a whole and is kept as %2.")
                      .arg(QDir::toNativeSeparators(files.user), QDir::toNativeSeparators(copy)));
    return !copy.isEmpty();
}

bool FileStore::mergeOthers(QByteArray& ours, const QByteArray& bytes, QString& reason) {
    const YamlResult theirs = parsed(bytes, files.user);
    const YamlResult before = parsed(base, files.user);
    const YamlResult both = parsed(ours, files.user);
    const auto lost = missed(
        mergeInto(both.tree->section(), before.tree->section(), theirs.tree->section(), files.wholeDepth),
        files.remembered);
    ours = bytesOf(both.tree->section());
    if (lost.empty())
        return true;
    const QString copy = keepBeside(files.user, QStringLiteral("other"), bytes, reason);
    if (!copy.isEmpty())
        io.report(tr("Another program has changed %1 too. Its version is kept as %2.")
                      .arg(QDir::toNativeSeparators(files.user), QDir::toNativeSeparators(copy)) +
                  listOf(lost));
    return !copy.isEmpty();
}

} // namespace standin

#include "moc_file_store.cpp"
