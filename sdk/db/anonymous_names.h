// Names of anonymous groups, "*A<n>". They are given out before a group is in any drawing, so the numbers are
// unique over all drawings that are open.
#pragma once

#include "sdk/rx/od_string.h"

OdString odDbNewAnonymousName();
// Keeps the number of a name that is in use from being given out.
void odDbNoteAnonymousName(const OdString& name);
