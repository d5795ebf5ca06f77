// Reading, writing and keeping of whole files.
#include "standin/params/store_io.h"

#include <QFile>

namespace standin {

void StoreIo::report(const QString& text) const {
    if (reportProblem)
        reportProblem(text);
}

std::optional<QByteArray> readWhole(const QString& path, QString& reason) {
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.readAll();
        if (file.error() == QFileDevice::NoError)
            return bytes;
    }
    reason = file.errorString();
    return std::nullopt;
}

bool writeWhole(const StoreIo& io, const QString& path, const QByteArray& bytes, QString& reason) {
    const auto file = io.newSaveFile ? io.newSaveFile(path) : std::make_unique<QSaveFile>(path);
    const bool written = file->open(QIODevice::WriteOnly) && file->write(bytes) == bytes.size() &&
                         file->flush() && file->commit();
    if (!written)
        reason = file->errorString();
    return written;
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
