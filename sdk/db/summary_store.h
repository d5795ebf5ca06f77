// Where a drawing keeps its summary: header values from R2004 on and in R12, a record of the root dictionary
// in the versions between.
#pragma once

#include "sdk/db/summary_info.h"

void odDbReadSummary(OdDbDatabase& database, OdDbDatabaseSummaryInfo& info);
// Both are false when nothing is different.
bool odDbWriteSummaryToHeader(OdDbDatabase& database, const OdDbDatabaseSummaryInfo& info);
bool odDbWriteSummaryRecord(OdDbDatabase& database, const OdDbDatabaseSummaryInfo& info, bool create);
bool odDbKeepsSummaryInHeader(const OdDbDatabase& database);
