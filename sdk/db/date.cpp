// Calendar and clock of Julian days, by the rules of the system.
#include "sdk/db/date.h"

#include <QDateTime>
#include <cmath>

namespace {

QDateTime momentOf(const OdTimeStamp& stamp, Qt::TimeSpec spec) {
    return QDateTime(QDate::fromJulianDay(stamp.julianDay()),
                     QTime::fromMSecsSinceStartOfDay(static_cast<int>(stamp.msecsPastMidnight())), spec);
}

OdTimeStamp stampOf(const QDateTime& moment) {
    return {static_cast<std::uint32_t>(moment.date().toJulianDay()),
            static_cast<std::uint32_t>(moment.time().msecsSinceStartOfDay())};
}

} // namespace

OdTimeStamp::OdTimeStamp(InitialValue initial) {
    if (initial == kInitLocalTime)
        *this = stampOf(QDateTime::currentDateTime());
    if (initial == kInitUniversalTime)
        *this = stampOf(QDateTime::currentDateTimeUtc());
}

OdTimeStamp::OdTimeStamp(std::uint32_t julianDayNumber, std::uint32_t milliseconds)
    : days(julianDayNumber), msecs(milliseconds), yearField(year()), monthField(month()), dayField(day()) {}

int OdTimeStamp::day() const { return QDate::fromJulianDay(days).day(); }
int OdTimeStamp::month() const { return QDate::fromJulianDay(days).month(); }
int OdTimeStamp::year() const { return QDate::fromJulianDay(days).year(); }

void OdTimeStamp::setDate(int monthValue, int dayValue, int yearValue) {
    monthField = monthValue;
    dayField = dayValue;
    yearField = yearValue;
    const QDate first(yearValue, monthValue, 1);
    if (first.isValid())
        days = static_cast<std::uint32_t>(first.addDays(dayValue - 1).toJulianDay());
}

void OdTimeStamp::setClock(int h, int m, int s, int ms) {
    msecs = static_cast<std::uint32_t>(((h * 60 + m) * 60 + s) * 1000 + ms);
}

void OdTimeStamp::universalToLocal() { *this = stampOf(momentOf(*this, Qt::UTC).toLocalTime()); }

void OdTimeStamp::localToUniversal() { *this = stampOf(momentOf(*this, Qt::LocalTime).toUTC()); }

OdTimeStamp OdTimeStamp::fromJulianFraction(double value) {
    constexpr double lastDay = 1e7;
    if (!(value >= 0 && value < lastDay))
        return {};
    const double whole = std::floor(value);
    const auto milliseconds = static_cast<std::uint32_t>(std::lround((value - whole) * 86400000.0));
    const auto day = static_cast<std::uint32_t>(whole);
    return milliseconds < 86400000u ? OdTimeStamp(day, milliseconds) : OdTimeStamp(day + 1, 0);
}
