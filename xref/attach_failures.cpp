// Which error is told in which words.
#include "xref/attach_failures.h"

#include "host/command_io.h"
#include "xref/attach_host.h"

namespace {

OdString messageFor(const OdString& path, OdResult code) {
    OdString text;
    switch (code) {
    case eUnsupportedFileFormat:
        return attach::word(L"This version of file format is not supported. \n"
                            L"Convert it to supported format to open file.");
    case eBadDwgFile:
    case eDxfReadError:
    case eInvalidDrawing:
        return attach::word(L"Drawing file is not valid.");
    case eCantOpenFile:
        return text.format(attach::word(L"\"%s\" cannot be found.").c_str(), path.c_str());
    default:
        return text;
    }
}

OdString besides(const OdString& path, const OdString& reason) { return path + OdString(L": ") + reason; }

} // namespace

void tellAttachFailure(HostCommandIO* io, const OdString& path, const OdError& error) {
    const OdString message = messageFor(path, error.code());
    if (message.isEmpty())
        return tellUnknownAttachFailure(io, besides(path, error.description()));
    attach::notice(kFileNotice, message);
    reportToConsole(io, besides(path, message));
}

void tellUnknownAttachFailure(HostCommandIO* io, const OdString& what) {
    reportToConsole(io, attach::word(L"XattachCmd Exception "));
    attach::refuse(what);
}

void tellCircle(HostCommandIO* io, const OdString& path) {
    const OdString message = attach::word(L"Error: Possible circular reference to current drawing.");
    if (io)
        io->printFormatted(message.c_str());
    attach::refuse(besides(path, message));
}
