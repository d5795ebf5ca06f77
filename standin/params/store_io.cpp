// Reading, writing and keeping of whole files.
#include "standin/params/store_io.h"

#include "sdk/rx/write_all.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace standin {

void StoreIo::report(const QString& text) const {
    if (reportProblem)
        reportProblem(text);
}

namespace {

const qint64 largestFile = 16 << 20;

QString tr(const char* text) { return QCoreApplication::translate("StoreIo", text); }

// Opening a pipe would wait for its other end, and a device may never come to one.
QString reasonNotToRead(const QFileInfo& file) {
    if (file.isDir())
        return tr("it is a folder");
    if (file.exists() && !file.isFile())
        return tr("it is no regular file");
    return file.size() > largestFile ? tr("it is larger than 16 MB") : QString();
}

} // namespace

std::optional<QByteArray> readWhole(const QString& path, QString& reason) {
    reason = reasonNotToRead(QFileInfo(path));
    if (!reason.isEmpty())
        return std::nullopt;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.read(largestFile);
        if (file.error() == QFileDevice::NoError)
            return bytes;
    }
    reason = file.errorString();
    return std::nullopt;
}

bool writeWhole(const StoreIo& io, const QString& path, const QByteArray& bytes, QString& reason) {
    const auto file = io.newSaveFile ? io.newSaveFile(path) : std::make_unique<QSaveFile>(path);
    if (!file->open(QIODevice::WriteOnly) ||
        !odWriteAll(*file, {bytes.constData(), static_cast<std::size_t>(bytes.size())}) || !file->flush()) {
        reason = odWriteFailure(*file);
        return false;
    }
    if (file->commit())
        return true;
    reason = file->errorString();
    return false;
}

QString keepBeside(const QString& path, const QString& kind, const QByteArray& bytes, QString& reason) {
    for (int n = 1;; ++n) {
        const QString name = QStringLiteral("%1.%2-%3").arg(path, kind).arg(n);
        if (!QFile::exists(name))
            return writeWhole(StoreIo(), name, bytes, reason) ? name : QString();
        QString unread;
        if (readWhole(name, unread) == bytes)
            return name;
    }
}

} // namespace standin
