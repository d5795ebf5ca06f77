// What the user is told when a drawing can't be attached. Where no message box is shown by the command
// itself, the attach services of the host get the text, and without them it stays silent.
#pragma once

#include "sdk/rx/od_error.h"

class HostCommandIO;

void tellAttachFailure(HostCommandIO* io, const OdString& path, const OdError& error);
// The same for an exception that is none of the drawing SDK's; `what` names the file and may give the reason.
void tellUnknownAttachFailure(HostCommandIO* io, const OdString& what);
// A file of the current drawing's own base name; `io` may be null.
void tellCircle(HostCommandIO* io, const OdString& path);
// These two only to hosts that want each failure in a box.
void tellNoName(const OdString& path);
void tellSemicolon(const OdString& path);
