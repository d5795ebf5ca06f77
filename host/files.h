// The host's facts about files.
#pragma once

// Times are in universal time.
struct FioFileInfo {
    int second, minute, hour, day, month, year;
    long long size;
};

bool Fio_IsFileExist(const wchar_t* path);
bool Fio_GetFileInfo(const wchar_t* path, FioFileInfo* info);
