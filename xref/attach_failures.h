// What the user is told when a drawing can't be attached.
#pragma once

#include "sdk/rx/od_error.h"

class HostCommandIO;

void tellAttachFailure(HostCommandIO* io, const OdString& path, const OdError& error);
// The same for an exception that is none of the drawing SDK's.
void tellUnknownAttachFailure(HostCommandIO* io, const OdString& path);
