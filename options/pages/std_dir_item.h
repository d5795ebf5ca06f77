// One section of standard directories as the dialog holds it, with the list classes below it.
#pragma once

#include "host/ref.h"
#include "host/xstring.h"
