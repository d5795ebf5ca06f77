// Tells how far the reading and writing of drawing files, and the preparing of their pictures, have come, for
// whoever shows it.
#pragma once

class OdDbProgressMeter {
public:
    enum Work { kReading, kWriting, kShowing };
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
