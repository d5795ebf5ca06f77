// Puts the process into another time zone for a while.
#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <ctime>

class TimeZone {
public:
    explicit TimeZone(const char* zone) : former(qgetenv("TZ")), wasSet(qEnvironmentVariableIsSet("TZ")) {
        qputenv("TZ", zone);
        tzset();
    }
    ~TimeZone() {
        wasSet ? qputenv("TZ", former) : qunsetenv("TZ");
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    QByteArray former;
    bool wasSet;
};
