// What the application hands out as the context of reading a system variable: the drawing that it is read of.
#pragma once

#include "sdk/rx/rx_object.h"

namespace standin {

class ReadContext : public OdRxObject {
    ODRX_DECLARE_CLASS(ReadContext)
    explicit ReadContext(OdRxObjectPtr databaseObject) : database(std::move(databaseObject)) {}
    const OdRxObjectPtr database; // null without a document
};

// The database object that a context stands for: that of a ReadContext, or a database itself; else null.
const OdRxObject* databaseOf(const OdRxObject* context);

} // namespace standin
