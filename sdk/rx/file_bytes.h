// Files as bytes: read whole, and written so that a crash leaves the old file or the new one.
#pragma once

#include "sdk/rx/od_error.h"

#include <cstdint>
#include <string_view>
#include <vector>

// Names a state of a file: while it is the same, so is what was read from it. A file that is not there has
// the stamp of zeros.
struct OdFileStamp {
    std::uint64_t size = 0, time = 0, number = 0; // bytes, nanoseconds of the last change, number of the file
};
inline bool operator==(const OdFileStamp& a, const OdFileStamp& b) {
    return a.size == b.size && a.time == b.time && a.number == b.number;
}
inline bool operator!=(const OdFileStamp& a, const OdFileStamp& b) { return !(a == b); }
OdFileStamp odFileStamp(const OdString& path);

// The bytes are a copy: a file that changes while a drawing is open does no harm to it. Throws OdError with
// eCantOpenFile and the reason.
std::string odReadFile(const OdString& path);
// Throws OdError with eFileWriteError and the reason; the old file is untouched then.
void odWriteFile(const OdString& path, const std::vector<std::string_view>& pieces);
