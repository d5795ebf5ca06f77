// The dialog of the drawing's properties: five tabs over one summary record, which is written back on OK and
// at no other moment. Other modules of the host may add and remove tabs.
#pragma once

#include "sdk/db/summary_info.h"

#include <QDialog>

class CustomTab;
class GeneralTab;
class HistoryTab;
class QFileInfo;
class QHBoxLayout;
class QPushButton;
class QTabWidget;
class StatisticTab;
class SummaryTab;

class dwgProps : public QDialog {
    Q_OBJECT
public:
    // Reads the current document; throws OdError without one.
    explicit dwgProps(QWidget* parent);
    ~dwgProps() override;

    int insertTab(int index, QWidget* page, const QString& label); // the index that the page has got
    void removeTab(int index);
    void onOK();
    void onCancel();

private:
    void build(const QFileInfo& fileInfo);
    void addTabs();
    void buildButtons();
    void layOut();
    QHBoxLayout* buttonRow() const;
    void connectSignals();
    void bringIntoReach();
    void writeSummary();
    void writeCustomProperties();

    QTabWidget* tabs;
    QPushButton* okButton;
    QPushButton* cancelButton;
    QPushButton* helpButton;
    OdDbDatabaseSummaryInfoPtr summaryInfo;
    SummaryTab* summaryTab;
    GeneralTab* generalTab;
    StatisticTab* statisticTab;
    CustomTab* customTab;
    HistoryTab* historyTab;
};
