// The tab with the six texts that describe a drawing. It only shows them; the dialog reads its widgets on OK.
#pragma once

#include "sdk/db/summary_info.h"

#include <QWidget>

class QFileInfo;
class QGridLayout;
class QLineEdit;
class SummaryLineEdit;
class m_TabTextEdit;

class SummaryTab : public QWidget {
    Q_OBJECT
public:
    SummaryTab(const QFileInfo& fileInfo, const OdDbDatabaseSummaryInfoPtr& summaryInfo);

    SummaryLineEdit* titleEdit;
    SummaryLineEdit* subjectEdit;
    SummaryLineEdit* authorEdit;
    SummaryLineEdit* keywordsEdit;
    m_TabTextEdit* commentsEdit;
    QLineEdit* hyperlinkEdit;

private:
    void build(const OdDbDatabaseSummaryInfo& info);
    SummaryLineEdit* newLineEdit(const char* name, const OdString& text);
    void layOut();
    void addRow(QGridLayout& grid, int row, const QString& label, QWidget* edit);
};
