// Texts of dates and of the drawing's strings, for the tabs of the dialog and for other modules of the host.
#pragma once

#include "sdk/db/date.h"
#include "sdk/rx/od_string.h"

#include <QDateTime>
#include <QString>

// "07 March 2024 14:05:09", with the month's full name in the system's language and the fields as they are
// stored: no time zone is converted. Empty for what is no date.
QString DbDateToLocalString(OdDbDate date);
// The same of a Qt date.
QString formatDate(QDateTime dateTime);
QString convertToNormalShow(OdString text);
