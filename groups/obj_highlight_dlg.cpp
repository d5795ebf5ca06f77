#include "groups/obj_highlight_dlg.h"

#include "groups/dialog_parts.h"
#include "groups/highlight.h"
#include "host/selection.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using group_dialogs::named;

// The first member is shown as not highlighted, and the counting starts at 0: both are meant.
CObjHighlightDlg::CObjHighlightDlg(QWidget* parent, const OdDbGroupPtr& group, HostDocument* groupDocument)
    : QDialog(parent), document(groupDocument) {
    group_dialogs::setUpWindow(*this, "CObjHighlightDlg", QDialog::tr("Object grouping"), 210, 110);
    group->allEntityIds(ids);
    build();
    layOut();
    showIndex();
    totalLabel->setText(QDialog::tr("Total:") + QLatin1Char(' ') + QString::number(ids.size()));
    prevButton->setEnabled(false);
    nextButton->setEnabled(ids.size() >= 2);
    highlightCurrent(false);
    connectControls();
}

void CObjHighlightDlg::build() {
    prevButton = named(new QPushButton(QDialog::tr("Prev"), this), "prevButton");
    nextButton = named(new QPushButton(QDialog::tr("Next"), this), "nextButton");
    okButton = named(new QPushButton(QDialog::tr("OK"), this), "okButton");
    objectLabel = named(new QLabel(this), "objectLabel");
    totalLabel = named(new QLabel(this), "totalLabel");
}

void CObjHighlightDlg::layOut() {
    auto* const column = new QVBoxLayout(this);
    auto* const steps = group_dialogs::centredRow({prevButton, nextButton});
    steps->setSpacing(10);
    column->addLayout(steps);
    column->addLayout(group_dialogs::centredRow({okButton}));
    auto* const labels = new QHBoxLayout;
    labels->addWidget(objectLabel);
    labels->addStretch();
    labels->addWidget(totalLabel);
    column->addLayout(labels);
}

void CObjHighlightDlg::connectControls() {
    connect(prevButton, &QPushButton::clicked, this, &CObjHighlightDlg::stepBack);
    connect(nextButton, &QPushButton::clicked, this, &CObjHighlightDlg::stepOn);
    connect(okButton, &QPushButton::clicked, this, &CObjHighlightDlg::finish);
}

void CObjHighlightDlg::showIndex() {
    objectLabel->setText(QDialog::tr("Object:") + QLatin1Char(' ') + QString::number(index));
}

void CObjHighlightDlg::highlightCurrent(bool on) {
    if (index >= ids.size())
        return;
    setObjectsHighlight({ids[index]}, on);
    HostUpdateDisplay();
}

void CObjHighlightDlg::stepBack() {
    highlightCurrent(false);
    --index;
    nextButton->setEnabled(true);
    if (index == 0)
        prevButton->setEnabled(false);
    showIndex();
    highlightCurrent(true);
}

void CObjHighlightDlg::stepOn() {
    highlightCurrent(false);
    ++index;
    prevButton->setEnabled(true);
    if (index + 1 == ids.size())
        nextButton->setEnabled(false);
    showIndex();
    highlightCurrent(true);
}

void CObjHighlightDlg::finish() {
    if (index >= ids.size())
        throw OdError_InvalidIndex();
    highlightCurrent(false);
    done(QDialog::Accepted);
}

void CObjHighlightDlg::closeEvent(QCloseEvent*) { finish(); }

#include "moc_obj_highlight_dlg.cpp"
