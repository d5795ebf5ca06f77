// Files as bytes: read whole, and written so that a crash leaves the old file or the new one.
#pragma once

#include "sdk/rx/od_error.h"

#include <string_view>
#include <vector>

// The bytes are a copy: a file that changes while a drawing is open does no harm to it. Throws OdError with
// eCantOpenFile and the reason.
std::string odReadFile(const OdString& path);
// Throws OdError with eFileWriteError and the reason; the old file is untouched then.
void odWriteFile(const OdString& path, const std::vector<std::string_view>& pieces);
