// What saving, and making, a drawing writes into it: who, when and which revision.
#pragma once

#include "sdk/db/database.h"

void odDbStampCreation(OdDbDatabase& database);
void odDbStampSave(OdDbDatabase& database);
