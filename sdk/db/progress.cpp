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
