// The copy is written beside its name and moved there at the end.
#include "standin/history/file_copy.h"

#include "sdk/rx/write_all.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace standin {

namespace {

const qint64 chunk = 1 << 20;

bool pour(QFile& from, QSaveFile& to, QString& reason) {
    while (!from.atEnd()) {
        const QByteArray bytes = from.read(chunk);
        if (bytes.isEmpty() && from.error() != QFileDevice::NoError) {
            reason = from.errorString();
            return false;
        }
        if (!odWriteAll(to, {bytes.constData(), static_cast<std::size_t>(bytes.size())})) {
            reason = odWriteFailure(to);
            return false;
        }
    }
    return true;
}

} // namespace

bool copyWhole(const StoreIo& io, const QString& from, const QString& to, QString& reason) {
    if (!QDir().mkpath(QFileInfo(to).path())) {
        reason = QCoreApplication::translate("FileCopy", "the folder %1 cannot be made")
                     .arg(QDir::toNativeSeparators(QFileInfo(to).path()));
        return false;
    }
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly)) {
        reason = source.errorString();
        return false;
    }
    const QDateTime time = source.fileTime(QFileDevice::FileModificationTime);
    const auto copy = io.newSaveFile ? io.newSaveFile(to) : std::make_unique<QSaveFile>(to);
    if (!copy->open(QIODevice::WriteOnly)) {
        reason = copy->errorString();
        return false;
    }
    if (!pour(source, *copy, reason))
        return false;
    // A file system that keeps no such times leaves the time of the copy, and that is no reason to fail.
    const bool flushed = copy->flush();
    copy->setFileTime(time, QFileDevice::FileModificationTime);
    if (!flushed || !copy->commit()) {
        reason = copy->errorString();
        return false;
    }
    return true;
}

} // namespace standin
