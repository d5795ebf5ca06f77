// Asks for one directory: typed or browsed for, and confirmed when it does not exist.
#include "options/pages/directories/dirs_dialog.h"

#include "host/qt_ui_core.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using host_qt_ui_core::QHostMessageBox;

DirsDialog::DirsDialog(QString& path, QWidget* parent) : QDialog(parent), startPath(path), result(&path) {
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint);
    setFixedSize(400, 100);
    build();
    layOut();
    connectAll();
}

void DirsDialog::build() {
    lineEdit = new QLineEdit(startPath, this);
    lineEdit->setObjectName(QStringLiteral("lineEdit"));
    lineEdit->setCursorPosition(0);
    lineEdit->setAccessibleName(tr("Folder"));
    okButton = new QPushButton(tr("OK"), this);
    okButton->setObjectName(QStringLiteral("okButton"));
    cancelButton = new QPushButton(tr("Cancel"), this);
    cancelButton->setObjectName(QStringLiteral("cancelButton"));
    browseButton = new QPushButton(tr("Browse"), this);
    browseButton->setObjectName(QStringLiteral("browseButton"));
}

void DirsDialog::layOut() {
    auto* pathRow = new QHBoxLayout;
    pathRow->addWidget(lineEdit);
    pathRow->addWidget(browseButton);
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addStretch();
    buttonRow->addWidget(okButton);
    buttonRow->addWidget(cancelButton);
    auto* rows = new QVBoxLayout;
    rows->addLayout(pathRow);
    rows->addLayout(buttonRow);
    setLayout(rows);
}

void DirsDialog::connectAll() {
    connect(okButton, &QPushButton::clicked, this, &DirsDialog::onOkClicked);
    connect(cancelButton, &QPushButton::clicked, this, &DirsDialog::reject);
    connect(browseButton, &QPushButton::clicked, this, &DirsDialog::onBrowseClicked);
}

void DirsDialog::onBrowseClicked() {
    const QString text = lineEdit->text();
    const QString start = QDir(text).exists() ? text : QString();
    const QString chosen =
        QFileDialog::getExistingDirectory(this, QString(), start, QFileDialog::ShowDirsOnly);
    if (!chosen.isEmpty())
        lineEdit->setText(chosen);
}

void DirsDialog::onOkClicked() {
    const QString text = lineEdit->text().trimmed();
    if (QDir(text).exists()) {
        acceptWith(QDir::toNativeSeparators(text));
    } else if (text.compare(startPath, Qt::CaseInsensitive) == 0) {
        accept(); // meant: the caller keeps the old path in its old letter case
    } else if (confirmMissing(text)) {
        const bool hasSeparator = text.contains(QDir::separator());
        const QString application = QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
        acceptWith(hasSeparator ? text : application + QDir::separator() + text);
    }
}

bool DirsDialog::confirmMissing(const QString& text) {
    // Meant: "does not exists", as it stands.
    const QString question =
        tr("Path \"%1\" does not exists.\nAre you sure you want to use this value?").arg(text);
    return QHostMessageBox::question(windowTitle(), question, EV_MB_YES | EV_MB_NO) == EV_MB_YES;
}

void DirsDialog::acceptWith(const QString& path) {
    *result = path;
    accept();
}

#include "moc_dirs_dialog.cpp"
