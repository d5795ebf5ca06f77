// Units of drawings in words.
#pragma once

#include "sdk/db/units.h"

#include <QString>

QString unitWord(OdDb::UnitsValue unit); // in the user's language; a number that is no unit counts as none
