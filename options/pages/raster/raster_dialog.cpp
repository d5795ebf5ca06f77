// Edits one raster format, and refuses names and extensions with characters that the store cannot take.
#include "options/pages/raster/raster_dialog.h"

#include "host/qt_ui_core.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "options/pages/raster/raster_format.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using host_qt_ui_core::QHostMessageBox;

namespace {

bool holdsOneOf(const QString& forbidden, const QString& text) {
    for (const QChar character : forbidden)
        if (text.indexOf(character) != -1)
            return true;
    return false;
}

// `message` takes the typed text as %1 and the forbidden characters as %2. False after telling the user.
bool checkText(const QString& text, const QString& forbidden, const QString& message) {
    if (!holdsOneOf(forbidden, text))
        return true;
    QHostMessageBox::critical(QDialog::tr("Error!"), message.arg(text, forbidden), EV_MB_OK);
    return false;
}

} // namespace

RasterDialog::RasterDialog(QWidget* parent, RasterFormat* format, bool isNew)
    : QDialog(parent), forbiddenNameChars(QStringLiteral("\t\r\n/\\:.+-*=,~!@#$%^&(){}[]|?'\"`")),
      forbiddenExtChars(QStringLiteral("/\\:.*|?")), record(format), isNewFormat(isNew) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setFixedSize(400, 100);
    build();
    layOut();
    connectAll();
}

void RasterDialog::build() {
    nameEdit = makeEdit(QStringLiteral("nameEdit"), QString::fromLocal8Bit(record->name));
    nameEdit->setEnabled(isNewFormat);
    descriptionEdit = makeEdit(QStringLiteral("descriptionEdit"), hostqt::qString(record->description));
    extensionEdit = makeEdit(QStringLiteral("extensionEdit"), QString::fromLocal8Bit(record->defExt));
    extensionEdit->setDisabled(record->generic != 0);
    okButton = makeButton(QStringLiteral("okButton"), tr("OK"));
    cancelButton = makeButton(QStringLiteral("cancelButton"), tr("Cancel"));
    optionsButton = makeButton(QStringLiteral("optionsButton"), tr("Options..."));
    optionsButton->setDisabled(record->canSetup == 0);
}

QLineEdit* RasterDialog::makeEdit(const QString& objectName, const QString& text) {
    auto* edit = new QLineEdit(text, this);
    edit->setObjectName(objectName);
    edit->setCursorPosition(0);
    return edit;
}

QPushButton* RasterDialog::makeButton(const QString& objectName, const QString& text) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(objectName);
    return button;
}

void RasterDialog::layOut() {
    auto* columns = new QHBoxLayout;
    columns->addLayout(layOutEdits());
    columns->addLayout(layOutButtons());
    setLayout(columns);
}

QLayout* RasterDialog::layOutEdits() {
    auto* grid = new QGridLayout;
    const std::pair<QString, QLineEdit*> labelled[] = {
        {tr("Name:"), nameEdit}, {tr("Description:"), descriptionEdit}, {tr("Extension:"), extensionEdit}};
    int row = 0;
    for (const auto& [text, edit] : labelled) {
        auto* const label = new QLabel(text, this);
        label->setBuddy(edit);
        grid->addWidget(label, row, 0);
        grid->addWidget(edit, row++, 1);
    }
    return grid;
}

QLayout* RasterDialog::layOutButtons() {
    auto* column = new QVBoxLayout;
    column->addWidget(okButton);
    column->addWidget(cancelButton);
    column->addWidget(optionsButton);
    column->addStretch();
    return column;
}

void RasterDialog::connectAll() {
    connect(okButton, &QPushButton::clicked, this, &RasterDialog::onOkClicked);
    connect(cancelButton, &QPushButton::clicked, this, &RasterDialog::reject);
    connect(optionsButton, &QPushButton::clicked, this, &RasterDialog::resolveSettings);
}

// Meant: an empty name passes, and so does the name of another format.
void RasterDialog::onOkClicked() {
    const QString name = nameEdit->text();
    if (isNewFormat) {
        if (!checkText(
                name, forbiddenNameChars,
                tr("Format name \"%1\" is invalid. Please choose another one.\nThe following characters "
                   "are not allowed: %2")))
            return;
        // Meant: the name is taken over before the extension is looked at, and stays when that is refused.
        record->name = CXString(hostqt::cxStringW(name));
    }
    const QString extension = extensionEdit->text(); // meant: looked at also where it can't be edited
    if (!checkText(
            extension, forbiddenExtChars,
            tr("Format extension \"%1\" is invalid. Please choose another one.\nThe following characters "
               "are not allowed: %2")))
        return;
    record->defExt = CXString(hostqt::cxStringW(extension));
    record->description = hostqt::cxStringW(descriptionEdit->text());
    accept();
}

// Meant: the module is looked up and nothing is loaded or shown; only the section "Options" comes into being.
const char* RasterDialog::resolveSettings() {
    const Ref<IParam> options = openChild(record->params.get(), "Options", 1);
    CXString format;
    readValue(options.get(), "Format", &format);
    return rasterSettingsModule(format);
}
