// The tab with the dates and counters of the drawing. It only shows, and is not refreshed while the dialog is
// open.
#pragma once

#include "sdk/db/date.h"
#include "sdk/db/summary_info.h"

#include <QWidget>

class QFileInfo;
class QGridLayout;

class StatisticTab : public QWidget {
    Q_OBJECT
public:
    StatisticTab(const QFileInfo& fileInfo, const OdDbDatabaseSummaryInfoPtr& summaryInfo);

    // The span in its largest unit alone: 90 minutes read "1 h". The milliseconds are counted in 32 bits and
    // wrap after 49.7 days, and that is meant.
    static QString formatEditingTime(OdDbDate date);

private:
    void addRow(QGridLayout& grid, int row, const QString& label, const QString& value, const char* name);
};
