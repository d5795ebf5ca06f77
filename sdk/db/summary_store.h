// Where a drawing keeps its summary: header values from R2004 on and in R12, a record of the root dictionary
// in the versions between.
#pragma once

#include "sdk/db/summary_info.h"

void odDbReadSummary(OdDbDatabase& database, OdDbDatabaseSummaryInfo& info);
// Both are false when nothing is different.
bool odDbWriteSummaryToHeader(OdDbDatabase& database, const OdDbDatabaseSummaryInfo& info);
bool odDbWriteSummaryRecord(OdDbDatabase& database, const OdDbDatabaseSummaryInfo& info);
// The marks that a save leaves: no step of their own, and none in a drawing that has no such record.
void odDbStampSummaryRecord(OdDbDatabase& database, const OdDbDatabaseSummaryInfo& info);
bool odDbIsSummaryVariable(std::string_view name);
bool odDbKeepsSummaryInHeader(const OdDbDatabase& database);
