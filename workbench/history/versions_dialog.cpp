// A version whose file is gone is listed, but can't be opened.
#include "workbench/history/versions_dialog.h"

#include "host/tool_tip.h"
#include "workbench/history/history_keeper.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>

using namespace standin;

namespace workbench {

namespace {

QString sizeText(const FileVersion& version) {
    const QFileInfo file(version.file);
    return file.isFile() ? QLocale::system().formattedDataSize(file.size()) : QString();
}

} // namespace

VersionsDialog::VersionsDialog(const QString& drawing, std::vector<FileVersion> versions, QWidget* parent)
    : QDialog(parent), shown(std::move(versions)) {
    setObjectName(QStringLiteral("VersionsDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("Versions of %1").arg(drawing));
    resize(620, 320);
    build();
    fill();
    layOut();
    connectSignals();
    versionsTable->selectRow(0);
    versionsTable->setFocus();
}

const FileVersion& VersionsDialog::chosen() const {
    return shown[static_cast<std::size_t>(versionOfRow(versionsTable->currentRow()))];
}

void VersionsDialog::build() {
    introLabel = new QLabel(this);
    introLabel->setObjectName(QStringLiteral("introLabel"));
    introLabel->setWordWrap(true);
    introLabel->setText(
        shown.empty()
            ? tr("No former version is kept. From the next save on, the file as it was before is kept.")
            : tr("What the file held before each save, the latest first. A version is opened as a new "
                 "drawing "
                 "without a name; the version itself stays as it is."));
    versionsTable = new QTableWidget(0, 3, this);
    versionsTable->setObjectName(QStringLiteral("versionsTable"));
    versionsTable->setAccessibleName(tr("Versions"));
    versionsTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    versionsTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    versionsTable->setSelectionMode(QAbstractItemView::SingleSelection);
    versionsTable->setTabKeyNavigation(false);
    versionsTable->verticalHeader()->hide();
    openButton = new QPushButton(tr("&Open"), this);
    openButton->setObjectName(QStringLiteral("openButton"));
    openButton->setDefault(true);
    openButton->setEnabled(false);
    closeButton = new QPushButton(tr("Close"), this);
    closeButton->setObjectName(QStringLiteral("closeButton"));
    closeButton->setAutoDefault(false);
}

void VersionsDialog::fill() {
    versionsTable->setHorizontalHeaderLabels({tr("Date"), tr("Size"), tr("Reason")});
    versionsTable->setRowCount(static_cast<int>(shown.size()));
    for (int row = 0; row < versionsTable->rowCount(); ++row) {
        const FileVersion& version = shown[static_cast<std::size_t>(versionOfRow(row))];
        const QString texts[] = {timeText(version), sizeText(version), reasonText(version)};
        for (int column = 0; column < 3; ++column) {
            auto* item = new QTableWidgetItem(texts[column]);
            item->setToolTip(hostqt::plainToolTip(texts[column]));
            if (!canOpen(row))
                item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
            versionsTable->setItem(row, column, item);
        }
    }
    versionsTable->resizeColumnToContents(0);
    versionsTable->resizeColumnToContents(1);
    versionsTable->horizontalHeader()->setStretchLastSection(true);
    versionsTable->horizontalHeader()->setHighlightSections(false);
    versionsTable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void VersionsDialog::layOut() {
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(openButton);
    buttons->addWidget(closeButton);
    auto* column = new QVBoxLayout(this);
    column->addWidget(introLabel);
    column->addWidget(versionsTable);
    column->addLayout(buttons);
}

void VersionsDialog::connectSignals() {
    connect(versionsTable, &QTableWidget::itemSelectionChanged, this,
            [this] { openButton->setEnabled(canOpen(versionsTable->currentRow())); });
    connect(versionsTable, &QTableWidget::itemDoubleClicked, this, &VersionsDialog::openRow);
    connect(openButton, &QPushButton::clicked, this, &VersionsDialog::openRow);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
}

bool VersionsDialog::canOpen(int row) const {
    return row >= 0 && QFileInfo(shown[static_cast<std::size_t>(versionOfRow(row))].file).isFile();
}

void VersionsDialog::openRow() {
    if (canOpen(versionsTable->currentRow()))
        accept();
}

} // namespace workbench

#include "moc_versions_dialog.cpp"
