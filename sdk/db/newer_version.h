// The way out for drawings of the oldest version that hold what it has no place for, groups above all.
#pragma once

#include "sdk/db/database.h"

// Whether writing the drawing would be refused, since its version has no place for all that it holds.
bool odDbNeedsNewerVersion(OdDbDatabase& database);

// A new drawing, in the version of new drawings, with everything of `database`; it has no file name yet.
// `leftOut` takes what could not be brought along, in words. Throws eInvalidInput for a drawing of a later
// version.
OdDbDatabasePtr odDbInNewerVersion(OdDbDatabase& database, std::vector<OdString>& leftOut);
