#include "sdk/rx/write_all.h"

#include <QFileDevice>
#include <cerrno>
#include <unistd.h>

bool odWriteAll(QIODevice& device, std::string_view bytes) {
    while (!bytes.empty()) {
        const qint64 written = device.write(bytes.data(), static_cast<qint64>(bytes.size()));
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

QString odWriteFailure(QFileDevice& file) {
    const QString known = file.errorString();
    const bool isKnown = known != QIODevice::tr("Unknown error");
    if (isKnown || file.handle() < 0)
        return known;
    const char byte = 0;
    return write(file.handle(), &byte, 1) < 0 ? qt_error_string(errno) : known;
}
