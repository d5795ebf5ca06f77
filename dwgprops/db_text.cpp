// One format for all dates of the dialog.
#include "dwgprops/db_text.h"

#include "host/text.h"

#include <QLocale>

QString DbDateToLocalString(OdDbDate date) {
    QDateTime dateTime;
    // In a local time the hour that summer time leaves out would be missing; the stored fields are shown as
    // they are.
    dateTime.setTimeSpec(Qt::UTC);
    dateTime.setDate(QDate(date.year(), date.month(), date.day()));
    dateTime.setTime(QTime(date.hour(), date.minute(), date.second(), date.millisecond()));
    return formatDate(dateTime);
}

QString formatDate(QDateTime dateTime) {
    if (!dateTime.isValid())
        return {};
    // The %1 passes through toString unchanged.
    return dateTime.toString(QStringLiteral("dd %1 yyyy hh:mm:ss"))
        .arg(QLocale::system().monthName(dateTime.date().month(), QLocale::LongFormat));
}

QString convertToNormalShow(OdString text) { return hostqt::qString(text); }
