// How references to an object are written.
#pragma once

#include "sdk/db/stub.h"

#include <string>

// As the record of the object in the file spells its handle, which a reader that compares texts finds.
std::string odDbHandleText(const OdDbStub& stub);
