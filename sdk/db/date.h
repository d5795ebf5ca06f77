// A moment as the drawing stores it: Julian day and milliseconds past midnight. Also read as a span, then the
// Julian day counts days.
#pragma once

#include <cstdint>

class OdTimeStamp {
public:
    enum InitialValue { kInitZero, kInitLocalTime, kInitUniversalTime };

    OdTimeStamp() = default;
    explicit OdTimeStamp(InitialValue initial);
    OdTimeStamp(std::uint32_t julianDayNumber, std::uint32_t milliseconds);

    std::uint32_t julianDay() const { return days; }
    std::uint32_t msecsPastMidnight() const { return msecs; }
    void setJulianDay(std::uint32_t number) { *this = OdTimeStamp(number, msecs); }
    void setMsecsPastMidnight(std::uint32_t milliseconds) { msecs = milliseconds; }

    int day() const;
    int month() const;
    int year() const;
    int hour() const { return static_cast<int>(msecs / 3600000); }
    int minute() const { return static_cast<int>(msecs / 60000 % 60); }
    int second() const { return static_cast<int>(msecs / 1000 % 60); }
    int millisecond() const { return static_cast<int>(msecs % 1000); }

    // The fields may come in any order: each setter changes its own alone, and a day that its month lacks is
    // only carried into the next month while it stands there.
    void setDay(int value) { setDate(monthField, value, yearField); }
    void setMonth(int value) { setDate(value, dayField, yearField); }
    void setYear(int value) { setDate(monthField, dayField, value); }
    void setDate(int monthValue, int dayValue, int yearValue);
    void setHour(int value) { setClock(value, minute(), second(), millisecond()); }
    void setMinute(int value) { setClock(hour(), value, second(), millisecond()); }
    void setSecond(int value) { setClock(hour(), minute(), value, millisecond()); }
    void setMillisecond(int value) { setClock(hour(), minute(), second(), value); }

    // By the rules of the system's time zone at that moment.
    void universalToLocal();
    void localToUniversal();

    // The day with its fraction, as drawing files hold it. A value that is no date reads as zero.
    double asJulianFraction() const { return days + msecs / 86400000.0; }
    static OdTimeStamp fromJulianFraction(double value);

    friend bool operator==(const OdTimeStamp& a, const OdTimeStamp& b) {
        return a.days == b.days && a.msecs == b.msecs;
    }

private:
    void setClock(int h, int m, int s, int ms);
    std::uint32_t days = 0;
    std::uint32_t msecs = 0;
    int yearField = 1, monthField = 1, dayField = 1; // as they were set, or those of the day
};

using OdDbDate = OdTimeStamp;
