#include "sdk/dxf/file_bytes.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

OdString messageFor(const OdString& path, const QString& reason) {
    return path + OdString(L": ") + OdString(reason.toStdWString());
}

} // namespace

std::string dxfReadFile(const OdString& path) {
    QFile file(QString::fromStdWString(path.wide()));
    if (QFileInfo(file).isDir())
        throw OdError(eCantOpenFile, messageFor(path, "is a directory"));
    if (!file.open(QIODevice::ReadOnly))
        throw OdError(eCantOpenFile, messageFor(path, file.errorString()));
    std::string bytes(static_cast<std::size_t>(file.size()), '\0');
    qint64 have = 0;
    while (have < static_cast<qint64>(bytes.size())) {
        const qint64 got = file.read(bytes.data() + have, static_cast<qint64>(bytes.size()) - have);
        if (got < 0)
            throw OdError(eCantOpenFile, messageFor(path, file.errorString()));
        if (got == 0)
            break;
        have += got;
    }
    bytes.resize(static_cast<std::size_t>(have));
    return bytes;
}

void dxfWriteFile(const OdString& path, const std::vector<std::string_view>& pieces) {
    QSaveFile file(QString::fromStdWString(path.wide()));
    bool good = file.open(QIODevice::WriteOnly);
    for (const std::string_view piece : pieces)
        good = good && file.write(piece.data(), static_cast<qint64>(piece.size())) ==
                           static_cast<qint64>(piece.size());
    if (!good || !file.commit())
        throw OdError(eFileWriteError, messageFor(path, file.errorString()));
}
