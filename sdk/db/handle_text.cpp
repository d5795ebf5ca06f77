// Writers spell handles in capital or small letters, some with zeros in front.
#include "sdk/db/handle_text.h"

#include "sdk/db/database_impl.h"
#include "sdk/dxf/scanner.h"

namespace {

constexpr int kHandle = 5;
constexpr int kHandleOfDimStyle = 105;

std::string_view spelledHandle(const OdDbStub& stub) {
    const int code = stub.database->impl().typeName(stub) == "DIMSTYLE" ? kHandleOfDimStyle : kHandle;
    DxfScanner scanner(stub.bytes());
    DxfTag tag;
    while (scanner.next(tag))
        if (tag.code == code && dxfHandle(tag.value()) == stub.handle)
            return dxfTrimmed(tag.value());
    return {};
}

} // namespace

std::string odDbHandleText(const OdDbStub& stub) {
    const bool isSpelled = stub.source && !stub.has(OdDbStub::kNoHandle);
    const std::string_view spelled = isSpelled ? spelledHandle(stub) : std::string_view();
    return spelled.empty() ? dxfHandleText(stub.handle) : std::string(spelled);
}
