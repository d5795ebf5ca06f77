// Tells how far long work with drawings has come, for whoever shows it.
#pragma once

#include <cstddef>

class OdDbProgressMeter {
public:
    enum Work { kReading, kWriting, kShowing, kSelecting, kListing };
    virtual ~OdDbProgressMeter() = default;
    // `part` goes from 0 to 1. False cancels: the work ends with eUserBreak, and a file that was to be
    // written stays as it is. No drawing may be changed meanwhile.
    virtual bool proceed(Work work, double part) = 0;
};

// Not owned; null takes it out.
void odDbSetProgressMeter(OdDbProgressMeter* meter);
OdDbProgressMeter* odDbProgressMeter();

// Throws OdError with eUserBreak when the meter cancels.
void odDbReportProgress(OdDbProgressMeter::Work work, double part);
// The same for work on a list, of which `done` of `all` are done: it asks now and then, and at the end.
void odDbReportProgress(OdDbProgressMeter::Work work, std::size_t done, std::size_t all);
