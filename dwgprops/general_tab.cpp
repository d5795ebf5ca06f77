// What is known of the drawing's file, from its picture down to its attributes.
#include "dwgprops/general_tab.h"

#include "dwgprops/current_drawing.h"
#include "dwgprops/db_text.h"
#include "dwgprops/elided_label.h"
#include "dwgprops/start_line_edit.h"
#include "host/tool_tip.h"

#include <QCheckBox>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QGridLayout>
#include <QMimeDatabase>

namespace {

// Owned before it is filled: what the rows ask of the drawing may throw.
QGridLayout& newGrid(QVBoxLayout& column) {
    auto* const grid = new QGridLayout;
    column.addLayout(grid);
    return *grid;
}

// From one provider, which keeps its icons: each new one would leave its pixels among those that Qt keeps.
QIcon fileIcon(const QFileInfo& fileInfo) {
    static const QFileIconProvider provider;
    return provider.icon(fileInfo);
}

} // namespace

GeneralTab::GeneralTab(const QFileInfo& fileInfo) {
    auto* const column = new QVBoxLayout(this);
    addName(newGrid(*column), fileInfo);
    addFacts(newGrid(*column), fileInfo);
}

QString GeneralTab::formatFileType(const QString& path) {
    const QString comment = QMimeDatabase().mimeTypeForFile(path).comment();
    return comment.isEmpty() ? QFileInfo(path).suffix() : comment;
}

QString GeneralTab::formatFileSize(qint64 size) {
    auto value = static_cast<float>(size);
    if (value == 0.0F)
        return {};
    const QString suffix = value >= 1024.0F ? tr("(%1 bytes)").arg(size) : QString();
    QString unit = tr("bytes");
    QStringList units{tr("KB"), tr("MB"), tr("GB"), tr("TB")};
    while (value >= 1024.0F && !units.isEmpty()) {
        unit = units.takeFirst();
        value *= 0.0009765625F;
    }
    return tr("%1 %2").arg(QString::number(static_cast<double>(value), 'f', 2), unit) + QLatin1Char(' ') +
           suffix;
}

void GeneralTab::addName(QGridLayout& grid, const QFileInfo& fileInfo) {
    QPixmap picture(32, 32);
    if (fileInfo.fileName().isEmpty())
        picture.fill(Qt::transparent);
    else
        picture = fileIcon(fileInfo).pixmap(32, 32);
    auto* const iconLabel = new QLabel(this);
    iconLabel->setObjectName(QStringLiteral("iconLabel"));
    iconLabel->setPixmap(picture);
    auto* const nameEdit = new m_LineEdit(fileInfo.fileName(), this);
    nameEdit->setObjectName(QStringLiteral("nameEdit"));
    nameEdit->setReadOnly(true);
    nameEdit->setAccessibleName(tr("File name"));
    nameEdit->setToolTip(hostqt::plainToolTip(fileInfo.fileName()));
    grid.addWidget(iconLabel, 0, 0);
    grid.addWidget(nameEdit, 0, 1);
}

void GeneralTab::addFacts(QGridLayout& grid, const QFileInfo& fileInfo) {
    addFileFacts(grid, fileInfo);
    addDates(grid, fileInfo);
    addAttributes(grid, fileInfo);
    for (const int row : {0, 4, 8})
        grid.addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Fixed), row, 1);
    grid.addItem(new QSpacerItem(20, 40, QSizePolicy::Minimum, QSizePolicy::Expanding), 10, 1);
    grid.setRowStretch(2, 1);
}

// The kind is asked of the bare name, not of the path.
void GeneralTab::addFileFacts(QGridLayout& grid, const QFileInfo& fileInfo) {
    const QString name = fileInfo.fileName();
    addRow(grid, 1, tr("Type:"), new QLabel(name.isEmpty() ? QString() : formatFileType(name), this),
           "typeLabel");
    const QString location = fileInfo.canonicalPath();
    auto* const locationLabel = new ElidedLabel(location, this);
    locationLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    locationLabel->setToolTip(hostqt::plainToolTip(location));
    addRow(grid, 2, tr("Location:"), locationLabel, "locationLabel");
    addRow(grid, 3, tr("Size:"), new QLabel(formatFileSize(fileInfo.size()), this), "sizeLabel");
}

void GeneralTab::addDates(QGridLayout& grid, const QFileInfo& fileInfo) {
    const OdDbDatabasePtr database = currentDrawing();
    addRow(grid, 5, tr("Created:"), new QLabel(DbDateToLocalString(database->getTDCREATE()), this),
           "createdLabel");
    addRow(grid, 6, tr("Modified:"), new QLabel(DbDateToLocalString(database->getTDUPDATE()), this),
           "modifiedLabel");
    addRow(grid, 7, tr("Accessed:"), new QLabel(formatDate(fileInfo.lastRead()), this), "accessedLabel");
}

void GeneralTab::addAttributes(QGridLayout& grid, const QFileInfo& fileInfo) {
    auto* const boxes = new QGridLayout;
    boxes->addWidget(
        newCheckBox(tr("Read Only"), fileInfo.isReadable() && !fileInfo.isWritable(), "readOnlyCheck"), 1, 1);
    boxes->addWidget(newCheckBox(tr("&Hidden"), fileInfo.isHidden(), "hiddenCheck"), 1, 2);
    boxes->addWidget(newCheckBox(tr("Archive"), false, "archiveCheck"), 2, 1);
    boxes->addWidget(newCheckBox(tr("System"), false, "systemCheck"), 2, 2);
    grid.addWidget(new QLabel(tr("Attributes:"), this), 9, 0);
    grid.addLayout(boxes, 9, 1);
}

void GeneralTab::addRow(QGridLayout& grid, int row, const QString& label, QLabel* value, const char* name) {
    value->setObjectName(QLatin1String(name));
    value->setTextFormat(Qt::PlainText);
    grid.addWidget(new QLabel(label, this), row, 0);
    grid.addWidget(value, row, 1);
}

QWidget* GeneralTab::newCheckBox(const QString& text, bool checked, const char* name) {
    auto* const box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(name));
    box->setChecked(checked);
    box->setEnabled(false);
    return box;
}

#include "moc_general_tab.cpp"
