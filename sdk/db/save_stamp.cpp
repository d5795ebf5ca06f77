// Dates, names and revision that a save leaves in the drawing; times are taken from the system here alone.
#include "sdk/db/save_stamp.h"

#include "sdk/db/database_impl.h"
#include "sdk/db/summary_store.h"

#include <cwchar>
#include <pwd.h>
#include <unistd.h>

namespace {

OdString userName() {
    const passwd* entry = getpwuid(geteuid());
    return entry ? OdString(entry->pw_name) : OdString();
}

// Revision numbers are free text; only one that is a number goes on.
OdString nextRevision(const OdString& revision) {
    if (revision.isEmpty())
        return L"1";
    wchar_t* end = nullptr;
    const long number = std::wcstol(revision.c_str(), &end, 10);
    return *end == L'\0' ? OdString(std::to_wstring(number + 1)) : revision;
}

void stampTimes(OdDbHeader& header, const char* local, const char* universal) {
    header.setReal(local, OdTimeStamp(OdTimeStamp::kInitLocalTime).asJulianFraction());
    if (universal)
        header.setReal(universal, OdTimeStamp(OdTimeStamp::kInitUniversalTime).asJulianFraction());
}

} // namespace

void odDbStampCreation(OdDbDatabase& database) {
    OdDbHeader& header = database.impl().header;
    stampTimes(header, "$TDCREATE", "$TDUCREATE");
    stampTimes(header, "$TDUPDATE", "$TDUUPDATE");
}

void odDbStampSave(OdDbDatabase& database) {
    OdDbDatabaseImpl& impl = database.impl();
    const bool hasUniversal = impl.header.find("$TDUUPDATE") != nullptr;
    const OdDbDatabaseImpl::Clock::time_point now = OdDbDatabaseImpl::Clock::now();
    stampTimes(impl.header, "$TDUPDATE", hasUniversal ? "$TDUUPDATE" : nullptr);
    impl.header.setReal("$TDINDWG", impl.editingDays(now));
    impl.openedAt = now;
    const OdDbDatabaseSummaryInfoPtr info = oddbGetSummaryInfo(&database);
    info->setLastSavedBy(userName());
    info->setRevisionNumber(nextRevision(info->getRevisionNumber()));
    if (odDbKeepsSummaryInHeader(database))
        odDbWriteSummaryToHeader(database, *info);
    else
        odDbStampSummaryRecord(database, *info);
}
