// Copying a file so that the copy is there as a whole or not at all.
#pragma once

#include "standin/params/store_io.h"

namespace standin {

// The copy keeps the time of the file. A failure says why in `reason` and leaves nothing behind.
bool copyWhole(const StoreIo& io, const QString& from, const QString& to, QString& reason);

} // namespace standin
