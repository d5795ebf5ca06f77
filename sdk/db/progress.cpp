#include "sdk/db/progress.h"

#include "sdk/rx/od_error.h"

namespace {

OdDbProgressMeter* progressMeter = nullptr;

} // namespace

void odDbSetProgressMeter(OdDbProgressMeter* meter) { progressMeter = meter; }
OdDbProgressMeter* odDbProgressMeter() { return progressMeter; }

void odDbReportProgress(OdDbProgressMeter::Work work, double part) {
    if (progressMeter && !progressMeter->proceed(work, part))
        throw OdError(eUserBreak, L"cancelled");
}

void odDbReportProgress(OdDbProgressMeter::Work work, std::size_t done, std::size_t all) {
    const std::size_t step = 500;
    if (done % step == 0 || done == all)
        odDbReportProgress(work, done == all ? 1 : static_cast<double>(done) / static_cast<double>(all));
}
