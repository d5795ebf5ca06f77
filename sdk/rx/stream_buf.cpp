// Files as streams of bytes in memory: only reading of existing files is offered.
#include "sdk/rx/stream_buf.h"

#include "sdk/rx/file_bytes.h"

ODRX_DEFINE_CLASS(OdStreamBuf, OdRxObject)

OdStreamBufPtr OdRxSystemServices::createFile(const OdString& path, unsigned access, int, int creation) {
    if (access != Oda::kFileRead || creation != Oda::kOpenExisting)
        throw OdError(eInvalidInput, path);
    return OdStreamBufPtr(new OdStreamBuf(odReadFile(path)));
}

OdRxSystemServices* odSystemServices() {
    static OdRxSystemServices services;
    return &services;
}
