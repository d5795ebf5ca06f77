// How the dialog is put together, and what OK writes back.
#include "dwgprops/dwg_props.h"

#include "dwgprops/current_drawing.h"
#include "dwgprops/custom_tab.h"
#include "dwgprops/custom_table.h"
#include "dwgprops/db_text.h"
#include "dwgprops/general_tab.h"
#include "dwgprops/history_tab.h"
#include "dwgprops/property_habits.h"
#include "dwgprops/property_tabs.h"
#include "dwgprops/start_line_edit.h"
#include "dwgprops/statistic_tab.h"
#include "dwgprops/summary_tab.h"
#include "dwgprops/tab_text_edit.h"
#include "host/dialog_habits.h"
#include "host/help.h"
#include "host/mnemonics.h"
#include "host/text.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>

namespace {

void setColumnWidths(QTableWidget& table) {
    table.setColumnWidth(0, 130);
    table.setColumnWidth(1, 0);
}

QPushButton* newButton(const QString& text, const char* name, QWidget* parent) {
    auto* const button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

} // namespace

dwgProps::dwgProps(QWidget* parent) : QDialog(parent, Qt::WindowFlags()) {
    setObjectName(QStringLiteral("dwgProps"));
    resize(400, 450);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    const OdDbDatabasePtr database = currentDrawing();
    const QString fileName = convertToNormalShow(database->getFilename());
    const QFileInfo fileInfo(fileName);
    setWindowTitle(QStringLiteral("%1 %2").arg(tr("Properties:"),
                                               fileName.isEmpty() ? currentTitle() : fileInfo.fileName()));
    summaryInfo = oddbGetSummaryInfo(database.get());
    build(fileInfo);
    addTabs();
    buildButtons();
    layOut();
    connectSignals();
    if (hasHabit(DialogHabit::PropertiesByKeyboard))
        bringIntoReach();
    tabs->setCurrentIndex(0);
    okButton->setFocus(Qt::OtherFocusReason);
}

dwgProps::~dwgProps() = default;

// Each tab gets the dialog as parent at once, so that it is freed when a later one throws.
void dwgProps::build(const QFileInfo& fileInfo) {
    tabs = new PropertyTabs(this);
    tabs->setObjectName(QStringLiteral("tabs"));
    const auto adopted = [this](auto* tab, const char* name) {
        tab->setParent(this);
        tab->setObjectName(QLatin1String(name));
        return tab;
    };
    generalTab = adopted(new GeneralTab(fileInfo), "generalTab");
    summaryTab = adopted(new SummaryTab(fileInfo, summaryInfo), "summaryTab");
    statisticTab = adopted(new StatisticTab(fileInfo, summaryInfo), "statisticTab");
    customTab = adopted(new CustomTab(fileInfo, summaryInfo), "customTab");
    setColumnWidths(*customTab->table);
    historyTab = adopted(new HistoryTab(), "historyTab");
    setColumnWidths(*historyTab->table);
}

// The ampersand at the end of "Custom&" is meant.
void dwgProps::addTabs() {
    tabs->addTab(generalTab, tr("General"));
    tabs->addTab(summaryTab, tr("Summary"));
    tabs->addTab(statisticTab, tr("Statistics"));
    tabs->addTab(customTab, tr("Custom&"));
    tabs->addTab(historyTab, tr("History"));
}

void dwgProps::buildButtons() {
    okButton = newButton(tr("OK"), "okButton", this);
    okButton->setDefault(true); // or Return in an edit would press Cancel, the button behind the focus
    cancelButton = newButton(tr("Cancel"), "cancelButton", this);
    helpButton = newButton(tr("Help"), "helpButton", this);
}

void dwgProps::layOut() {
    auto* const column = new QVBoxLayout(this);
    column->addWidget(tabs);
    column->addLayout(buttonRow());
}

QHBoxLayout* dwgProps::buttonRow() const {
    auto* const row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(okButton);
    row->addWidget(cancelButton);
    row->addWidget(helpButton);
    return row;
}

void dwgProps::connectSignals() {
    connect(okButton, &QPushButton::clicked, this, &dwgProps::onOK);
    connect(cancelButton, &QPushButton::clicked, this, &dwgProps::onCancel);
    connect(helpButton, &QPushButton::clicked, this, [] { showHelp("IDH_DWGProps"); });
}

void dwgProps::bringIntoReach() {
    giveMnemonics(*this); // before the tabs are measured
    showAllTabs(*this, *tabs);
    fitFirstColumn(*customTab->table);
    fitFirstColumn(*historyTab->table);
    letKeysInto(*historyTab->table);
}

int dwgProps::insertTab(int index, QWidget* page, const QString& label) {
    return tabs->insertTab(index, page, label);
}

void dwgProps::removeTab(int index) { tabs->removeTab(index); }

void dwgProps::onOK() {
    writeSummary();
    writeCustomProperties();
    oddbPutSummaryInfo(summaryInfo.get());
    QDialog::accept();
}

void dwgProps::onCancel() { QDialog::reject(); }

// All six are written, whether or not they have changed.
void dwgProps::writeSummary() {
    summaryInfo->setTitle(hostqt::odStringFromWidget(summaryTab->titleEdit->text()));
    summaryInfo->setSubject(hostqt::odStringFromWidget(summaryTab->subjectEdit->text()));
    summaryInfo->setAuthor(hostqt::odStringFromWidget(summaryTab->authorEdit->text()));
    summaryInfo->setKeywords(hostqt::odStringFromWidget(summaryTab->keywordsEdit->text()));
    summaryInfo->setComments(hostqt::odStringFromWidget(summaryTab->commentsEdit->toPlainText()));
    summaryInfo->setHyperlinkBase(hostqt::odStringFromWidget(summaryTab->hyperlinkEdit->text()));
}

// Rows are read by position, an empty name among them too. Keys are trimmed, values are not.
void dwgProps::writeCustomProperties() {
    const QTableWidget& table = *customTab->table;
    const int count = countNamedRows(table);
    for (int row = 0; row < count; ++row)
        summaryInfo->setCustomSummaryInfo(row, hostqt::odStringFromWidget(cellText(table, row, 0).trimmed()),
                                          hostqt::odStringFromWidget(cellText(table, row, 1)));
    while (summaryInfo->numCustomInfo() > count)
        summaryInfo->deleteCustomSummaryInfo(count);
}

#include "moc_dwg_props.cpp"
