// All reading and writing of files goes through here, so that no other code can leave half a file behind.
#include "sdk/rx/file_bytes.h"

#include "sdk/rx/wide_text.h"
#include "sdk/rx/write_all.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <sys/stat.h>

namespace {

OdString messageFor(const OdString& path, const QString& reason) {
    return path + OdString(L": ") + OdString(reason.toStdWString());
}

// Opening a pipe would wait for its other end.
void refuseToRead(const OdString& path) {
    const QFileInfo present(odQString(path.wide()));
    if (present.isDir())
        throw OdError(eCantOpenFile, messageFor(path, "is a directory"));
    if (present.exists() && !present.isFile())
        throw OdError(eCantOpenFile, messageFor(path, "is not a regular file"));
}

// A device or a pipe must never be replaced by a file.
void refuseSpecialFile(const OdString& path) {
    const QFileInfo present(odQString(path.wide()));
    if (present.exists() && !present.isFile())
        throw OdError(eFileWriteError, messageFor(path, "is not a regular file"));
}

} // namespace

OdFileStamp odFileStamp(const OdString& path) {
    struct stat found {};
    if (stat(QFile::encodeName(odQString(path.wide())).constData(), &found) != 0)
        return {};
    constexpr std::uint64_t second = 1000000000;
    return {static_cast<std::uint64_t>(found.st_size),
            static_cast<std::uint64_t>(found.st_mtim.tv_sec) * second +
                static_cast<std::uint64_t>(found.st_mtim.tv_nsec),
            static_cast<std::uint64_t>(found.st_ino)};
}

std::string odReadFile(const OdString& path) {
    refuseToRead(path);
    QFile file(odQString(path.wide()));
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

void odWriteFile(const OdString& path, const std::vector<std::string_view>& pieces) {
    refuseSpecialFile(path);
    QSaveFile file(odQString(path.wide()));
    bool good = file.open(QIODevice::WriteOnly);
    for (const std::string_view piece : pieces)
        good = good && odWriteAll(file, piece);
    good = good && file.flush();
    if (!good)
        throw OdError(eFileWriteError, messageFor(path, odWriteFailure(file)));
    if (!file.commit())
        throw OdError(eFileWriteError, messageFor(path, file.errorString()));
}
