// The host's facts about files.
#include "host/files.h"

#include "host/text.h"

#include <QDateTime>
#include <QFileInfo>

bool Fio_IsFileExist(const wchar_t* path) { return QFileInfo(hostqt::qString(path)).isFile(); }

bool Fio_GetFileInfo(const wchar_t* path, FioFileInfo* info) {
    const QFileInfo file(hostqt::qString(path));
    if (!file.isFile())
        return false;
    const QDateTime time = file.lastModified().toUTC();
    info->second = time.time().second();
    info->minute = time.time().minute();
    info->hour = time.time().hour();
    info->day = time.date().day();
    info->month = time.date().month();
    info->year = time.date().year();
    info->size = file.size();
    return true;
}
