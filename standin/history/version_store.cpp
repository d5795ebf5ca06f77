// Names of folders and version files, the index, and the limit.
#include "standin/history/version_store.h"

#include "host/text.h"
#include "host/typed_reads.h"
#include "standin/history/file_copy.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

namespace standin {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("VersionStore", text); }

// One path for one file, whatever links lead to it, and while it is missing too.
QString realPath(const QString& drawing) {
    const QFileInfo file(drawing);
    const QString real = file.canonicalFilePath();
    if (!real.isEmpty())
        return real;
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? file.absolutePath() : folder) + QLatin1Char('/') + file.fileName();
}

// Readable for people, and different for each path.
QString folderName(const QString& drawing) {
    const QString path = realPath(drawing);
    const QByteArray hash =
        QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
    QString name = QFileInfo(path).completeBaseName().left(40);
    name.replace(QRegularExpression(QStringLiteral("[^\\w-]")), QStringLiteral("_"));
    return name + QLatin1Char('-') + QString::fromLatin1(hash);
}

// Names sort by the time of keeping.
QString newName(const QDir& folder, const QString& drawing) {
    const QString suffix = QFileInfo(drawing).suffix();
    QString name;
    for (QDateTime now = QDateTime::currentDateTimeUtc(); name.isEmpty() || folder.exists(name);
         now = now.addMSecs(1))
        name = now.toString(QStringLiteral("yyyyMMdd'T'hhmmsszzz")) +
               QStringLiteral("-%1.%2")
                   .arg(QCoreApplication::applicationPid())
                   .arg(suffix.isEmpty() ? QStringLiteral("dxf") : suffix);
    return name;
}

// What a crash left of a copy has another ending.
bool isVersionName(const QString& name) {
    static const QRegularExpression form(QStringLiteral("^\\d{8}T\\d{9}-\\d+\\.[^.]+$"));
    return form.match(name).hasMatch();
}

bool isSameFile(const QString& one, const QString& other) {
    const QFileInfo a(one), b(other);
    return a.isFile() && b.isFile() && a.size() == b.size() && a.lastModified() == b.lastModified();
}

} // namespace

VersionStore::VersionStore(const QString& rootDir, StoreIo storeIo)
    : root(QDir(rootDir).absolutePath()), io(std::move(storeIo)) {
    const int everyValueByItself = 1000000;
    index = Ref<InFile<MemParam>>::share(
        new InFile<MemParam>({{}, root + QStringLiteral("/history.yaml"), everyValueByItself}, io));
}

QString VersionStore::folderOf(const QString& drawing) const {
    return root + QStringLiteral("/history/") + folderName(drawing);
}

std::vector<FileVersion> VersionStore::versionsOf(const QString& drawing) const {
    const QDir folder(folderOf(drawing));
    const Ref<IParam> known = openChild(index.get(), folderName(drawing).toUtf8().constData());
    QSet<QString> names;
    for (const std::string& name : childNames(known.get()))
        names.insert(QString::fromStdString(name));
    for (const QString& name : folder.entryList(QDir::Files))
        if (isVersionName(name))
            names.insert(name);
    QStringList sorted = names.values();
    sorted.sort();
    std::vector<FileVersion> versions;
    for (const QString& name : sorted) {
        CXStringW reason;
        readValue(openChild(known.get(), name.toUtf8().constData()).get(), "Reason", &reason);
        versions.push_back({folder.filePath(name), hostqt::qString(reason)});
    }
    return versions;
}

// An index without any of its files tells of a folder that was moved away or deleted.
void VersionStore::tellIfVanished(const QString& drawing) const {
    const std::vector<FileVersion> versions = versionsOf(drawing);
    if (versions.empty() || QFileInfo(folderOf(drawing)).isDir())
        return;
    io.report(tr("The folder with the former versions of %1 is gone: %2")
                  .arg(QDir::toNativeSeparators(drawing), QDir::toNativeSeparators(folderOf(drawing))));
}

void VersionStore::note(const QString& drawing, const QString& name, const QString& reason) {
    const Ref<IParam> entry = openChild(index.get(), folderName(drawing).toUtf8().constData(), 1);
    writeValue(entry.get(), "Drawing", hostqt::cxStringW(realPath(drawing)));
    const Ref<IParam> version = openChild(entry.get(), name.toUtf8().constData(), 1);
    writeValue(version.get(), "Reason", hostqt::cxStringW(reason));
}

QStringList VersionStore::forgetOldest(const QString& drawing, int maximum) {
    std::vector<FileVersion> versions = versionsOf(drawing);
    const int surplus = std::max(0, static_cast<int>(versions.size()) - maximum);
    versions.resize(static_cast<std::size_t>(surplus));
    const Ref<IParam> entry = openChild(index.get(), folderName(drawing).toUtf8().constData(), 1);
    QStringList files;
    for (const FileVersion& version : versions) {
        entry->removeEntry(QFileInfo(version.file).fileName().toUtf8().constData());
        files << version.file;
    }
    return files;
}

void VersionStore::removeFiles(const QStringList& files) const {
    for (const QString& name : files) {
        QFile file(name);
        if (file.exists() && !file.remove())
            io.report(tr("The former version %1 cannot be removed: %2")
                          .arg(QDir::toNativeSeparators(name), file.errorString()));
    }
}

// Nothing when there is no version, which is told.
std::optional<KeptVersion> VersionStore::copyOf(const QString& drawing) const {
    const std::vector<FileVersion> versions = versionsOf(drawing);
    if (!versions.empty() && isSameFile(versions.back().file, drawing))
        return KeptVersion{drawing, QFileInfo(versions.back().file).fileName(), false,
                           versions.back().reason};
    const QDir folder(folderOf(drawing));
    const QString name = newName(folder, drawing);
    QString problem;
    if (copyWhole(io, drawing, folder.filePath(name), problem))
        return KeptVersion{drawing, name, true, {}};
    io.report(
        tr("The former version of %1 could not be kept: %2").arg(QDir::toNativeSeparators(drawing), problem));
    return std::nullopt;
}

std::optional<KeptVersion> VersionStore::add(const QString& drawing, const QString& reason) {
    if (!QFileInfo(drawing).isFile())
        return std::nullopt;
    tellIfVanished(drawing);
    const auto kept = copyOf(drawing);
    if (kept)
        note(drawing, kept->name, reason);
    index->flush(); // tells of a failure itself; the version stays, without its reason
    return kept;
}

// The files go last, so that the index never names one that is gone, whenever the process ends.
void VersionStore::settle(const QString& drawing, int maximum) {
    const QStringList surplus = forgetOldest(drawing, maximum);
    if (index->flush())
        removeFiles(surplus);
}

void VersionStore::takeBack(const KeptVersion& kept) {
    if (!kept.isNew)
        note(kept.drawing, kept.name, kept.formerReason);
    else
        forget(kept);
}

void VersionStore::forget(const KeptVersion& kept) {
    const std::string folder = folderName(kept.drawing).toStdString();
    const QDir files(folderOf(kept.drawing));
    openChild(index.get(), folder.c_str(), 1)->removeEntry(kept.name.toUtf8().constData());
    if (index->flush())
        QFile::remove(files.filePath(kept.name));
    if (versionsOf(kept.drawing).empty()) {
        index->removeEntry(folder.c_str());
        QDir().rmdir(files.path());
    }
}

} // namespace standin
