// Finds the drawing that a context stands for.
#include "standin/sysvars/read_context.h"

namespace standin {

ODRX_DEFINE_CLASS(ReadContext, OdRxObject)

const OdRxObject* databaseOf(const OdRxObject* context) {
    const auto read = odrxQuery<ReadContext>(context);
    return read.isNull() ? context : read->database.get();
}

} // namespace standin
