// The summary record as callers see it; where a version keeps it is told in summary_store.
#include "sdk/db/summary_info.h"

#include "sdk/db/database_impl.h"
#include "sdk/db/summary_store.h"

ODRX_DEFINE_CLASS(OdDbDatabaseSummaryInfo, OdRxObject)

namespace {

OdDbDatabaseSummaryInfoPtr presentSummary(OdDbDatabase& database) {
    OdDbDatabaseSummaryInfoPtr info(new OdDbDatabaseSummaryInfo);
    odDbReadSummary(database, *info);
    return info;
}

// Header values are no objects: their former state is kept here. Without a reference to the database, which
// owns this change.
class SummaryChange : public OdDbChange {
public:
    explicit SummaryChange(OdDbHeader& changed) : header(changed), other(changed.all()) {}
    void swap() override {
        OdDbHeader::Variables present = header.all();
        header.restore(other, odDbIsSummaryVariable);
        other = std::move(present);
    }

private:
    OdDbHeader& header;
    OdDbHeader::Variables other;
};

} // namespace

std::size_t OdDbDatabaseSummaryInfo::checkedIndex(int index) const {
    if (index < 0 || index >= numCustomInfo())
        throw OdError_InvalidIndex();
    return static_cast<std::size_t>(index);
}

void OdDbDatabaseSummaryInfo::getCustomSummaryInfo(int index, OdString& key, OdString& value) const {
    std::tie(key, value) = custom[checkedIndex(index)];
}

void OdDbDatabaseSummaryInfo::setCustomSummaryInfo(int index, const OdString& key, const OdString& value) {
    if (index >= numCustomInfo())
        custom.emplace_back(key, value);
    else
        custom[checkedIndex(index)] = {key, value};
}

void OdDbDatabaseSummaryInfo::deleteCustomSummaryInfo(int index) {
    custom.erase(custom.begin() + static_cast<std::ptrdiff_t>(checkedIndex(index)));
}

OdDbDatabaseSummaryInfoPtr oddbGetSummaryInfo(OdDbDatabase* database) {
    if (!database)
        return OdDbDatabaseSummaryInfoPtr(new OdDbDatabaseSummaryInfo);
    OdDbDatabaseSummaryInfoPtr info = presentSummary(*database);
    info->setDatabase(database);
    return info;
}

void oddbPutSummaryInfo(const OdDbDatabaseSummaryInfo* info) {
    if (!info || !info->database())
        throw OdError(eNotInDatabase);
    OdDbDatabase& database = *info->database();
    if (!odDbKeepsSummaryInHeader(database)) {
        odDbWriteSummaryRecord(database, *info);
        return;
    }
    auto change = std::make_unique<SummaryChange>(database.impl().header);
    if (odDbWriteSummaryToHeader(database, *info))
        database.impl().log.record(std::move(change));
}
