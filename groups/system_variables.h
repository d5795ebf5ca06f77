// The 8-bit system variables that the group commands read and write.
#pragma once

#include "sdk/db/database.h"

#include <cstdint>

// 1 with the value in `out`, or 0 when it can't be read. A null database stands for the one that the Qt
// application's console names.
int readSysVarInt8(const wchar_t* name, std::int8_t& out, const OdDbDatabasePtr& database);
// Through the host's service of system variables.
void writeSysVarInt8(const wchar_t* name, std::int8_t value, const OdDbDatabasePtr& database);

extern const wchar_t* const kPickStyle; // whether picking a member picks its group
