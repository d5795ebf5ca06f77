// Which error is told in which words.
#include "xref/attach_failures.h"

#include "host/command_io.h"
#include "host/dialog_habits.h"
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

bool isToldInBox(const OdString& path, const OdString& reason) {
    if (!hasHabit(DialogHabit::BadFilesRefusedAtOnce))
        return false;
    attach::notice(kFileNotice, besides(path, reason));
    return true;
}

} // namespace

void tellAttachFailure(HostCommandIO* io, const OdString& path, const OdError& error) {
    const OdString message = messageFor(path, error.code());
    if (message.isEmpty())
        return tellUnknownAttachFailure(io, besides(path, error.description()));
    if (isToldInBox(path, message))
        return;
    attach::notice(kFileNotice, message);
    reportToConsole(io, besides(path, message));
}

void tellUnknownAttachFailure(HostCommandIO* io, const OdString& what) {
    reportToConsole(io, attach::word(L"XattachCmd Exception "));
    attach::refuse(what);
}

void tellCircle(HostCommandIO* io, const OdString& path) {
    const OdString message = attach::word(L"Error: Possible circular reference to current drawing.");
    if (isToldInBox(path, message))
        return;
    if (io)
        io->printFormatted(message.c_str());
    attach::refuse(besides(path, message));
}

void tellNoName(const OdString& path) {
    isToldInBox(path, attach::word(L"No block can have a name made from that of the file."));
}

void tellSemicolon(const OdString& path) {
    isToldInBox(path, attach::word(L"A file with a semicolon in its path can't be attached."));
}
