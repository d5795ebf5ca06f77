// Dates, names and the editing time of the drawing, in five rows.
#include "dwgprops/statistic_tab.h"

#include "dwgprops/db_text.h"
#include "sdk/db/database.h"

#include <QGridLayout>
#include <QLabel>

StatisticTab::StatisticTab(const QFileInfo&, const OdDbDatabaseSummaryInfoPtr& summaryInfo) {
    const OdDbDatabasePtr database = summaryInfo->database();
    auto* const grid = new QGridLayout(this);
    addRow(*grid, 1, tr("Created:"), DbDateToLocalString(database->getTDCREATE()), "createdLabel");
    addRow(*grid, 2, tr("Modified:"), DbDateToLocalString(database->getTDUPDATE()), "modifiedLabel");
    addRow(*grid, 3, tr("Last saved by:"), convertToNormalShow(summaryInfo->getLastSavedBy()),
           "lastSavedByLabel");
    addRow(*grid, 4, tr("Revision number:"), convertToNormalShow(summaryInfo->getRevisionNumber()),
           "revisionNumberLabel");
    addRow(*grid, 5, tr("Total editing time:"), formatEditingTime(database->getTDINDWG()),
           "editingTimeLabel");
    grid->addItem(new QSpacerItem(20, 40, QSizePolicy::Minimum, QSizePolicy::Expanding), 6, 1);
    for (int row = 1; row <= 6; ++row)
        grid->addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum), row, 3);
}

QString StatisticTab::formatEditingTime(OdDbDate date) {
    const auto ms = static_cast<quint32>(date.julianDay()) * quint32{86400000} +
                    static_cast<quint32>(date.msecsPastMidnight());
    if (const quint32 hours = ms / 3600000)
        return tr("%1 h").arg(hours);
    if (const quint32 minutes = ms / 60000)
        return tr("%1 min").arg(minutes);
    return tr("%1 sec").arg(ms / 1000);
}

void StatisticTab::addRow(QGridLayout& grid, int row, const QString& label, const QString& value,
                          const char* name) {
    auto* const valueLabel = new QLabel(this);
    valueLabel->setObjectName(QLatin1String(name));
    valueLabel->setTextFormat(Qt::PlainText);
    valueLabel->setText(value);
    grid.addWidget(new QLabel(label, this), row, 1);
    grid.addWidget(valueLabel, row, 2);
}

#include "moc_statistic_tab.cpp"
