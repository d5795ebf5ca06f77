#include "groups/system_variables.h"

#include "groups/current_drawing.h"

const wchar_t* const kPickStyle = L"PICKSTYLE";

// Any failure is only told by the result: that is meant.
int readSysVarInt8(const wchar_t* name, std::int8_t& out, const OdDbDatabasePtr& database) {
    try {
        const OdDbDatabasePtr source = database.isNull() ? consoleDatabase() : database;
        out = source->getSysVar(name)->getInt8();
        return 1;
    } catch (...) {
        return 0;
    }
}

void writeSysVarInt8(const wchar_t* name, std::int8_t value, const OdDbDatabasePtr& database) {
    const OdResBufPtr buffer = OdResBuf::newRb(OdResBuf::kDxfInt8);
    buffer->setInt8(value);
    HostDocManager()->varService()->setVar(name, buffer.get(), database.get(), 0);
}
