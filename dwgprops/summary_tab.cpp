// Six labelled edits, filled from the summary record.
#include "dwgprops/summary_tab.h"

#include "dwgprops/db_text.h"
#include "dwgprops/start_line_edit.h"
#include "dwgprops/tab_text_edit.h"

#include <QGridLayout>
#include <QLabel>

SummaryTab::SummaryTab(const QFileInfo&, const OdDbDatabaseSummaryInfoPtr& summaryInfo) {
    build(*summaryInfo);
    layOut();
}

void SummaryTab::build(const OdDbDatabaseSummaryInfo& info) {
    titleEdit = newLineEdit("titleEdit", info.getTitle());
    subjectEdit = newLineEdit("subjectEdit", info.getSubject());
    authorEdit = newLineEdit("authorEdit", info.getAuthor());
    keywordsEdit = newLineEdit("keywordsEdit", info.getKeywords());
    hyperlinkEdit = new QLineEdit(convertToNormalShow(info.getHyperlinkBase()), this);
    hyperlinkEdit->setObjectName(QStringLiteral("hyperlinkEdit"));
    commentsEdit = new m_TabTextEdit(hyperlinkEdit, this);
    commentsEdit->setObjectName(QStringLiteral("commentsEdit"));
    commentsEdit->setPlainText(convertToNormalShow(info.getComments()));
    commentsEdit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

SummaryLineEdit* SummaryTab::newLineEdit(const char* name, const OdString& text) {
    auto* const edit = new SummaryLineEdit(convertToNormalShow(text), this);
    edit->setObjectName(QLatin1String(name));
    edit->setCursorPosition(0);
    return edit;
}

void SummaryTab::layOut() {
    auto* const grid = new QGridLayout(this);
    addRow(*grid, 1, tr("Title:"), titleEdit);
    addRow(*grid, 2, tr("Subject:"), subjectEdit);
    addRow(*grid, 3, tr("Author:"), authorEdit);
    addRow(*grid, 4, tr("Keywords:"), keywordsEdit);
    addRow(*grid, 5, tr("Comments:"), commentsEdit);
    addRow(*grid, 6, tr("Hyperlink base:"), hyperlinkEdit);
    grid->addItem(new QSpacerItem(20, 40), 7, 1);
    grid->setColumnStretch(2, 0);
    QWidget::setTabOrder(keywordsEdit, commentsEdit);
    QWidget::setTabOrder(commentsEdit, hyperlinkEdit);
}

void SummaryTab::addRow(QGridLayout& grid, int row, const QString& label, QWidget* edit) {
    auto* const edited = new QLabel(label, this);
    edited->setBuddy(edit);
    grid.addWidget(edited, row, 1);
    grid.addWidget(edit, row, 2);
}

#include "moc_summary_tab.cpp"
