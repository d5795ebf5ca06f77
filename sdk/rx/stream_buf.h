// A file as a stream of bytes, and the service that opens it.
#pragma once

#include "sdk/rx/rx_object.h"

#include <cstdint>
#include <string>

class OdStreamBuf : public OdRxObject {
    ODRX_DECLARE_CLASS(OdStreamBuf)
public:
    explicit OdStreamBuf(std::string content) : bytes(std::move(content)) {}
    std::uint64_t length() const { return bytes.size(); }
    const std::string& content() const { return bytes; }

private:
    std::string bytes;
};
using OdStreamBufPtr = OdSmartPtr<OdStreamBuf>;

namespace Oda {
enum FileAccessMode : unsigned { kFileRead = 0x80000000u };
enum FileShareMode { kShareDenyNo = 64 };
enum FileCreationDisposition { kOpenExisting = 3 };
} // namespace Oda

class OdRxSystemServices {
public:
    // Opens an existing file for reading, the only way of opening that is offered. Throws OdError with
    // eCantOpenFile.
    OdStreamBufPtr createFile(const OdString& path, unsigned access = Oda::kFileRead,
                              int shareMode = Oda::kShareDenyNo, int creation = Oda::kOpenExisting);
};

OdRxSystemServices* odSystemServices();
