// The controls of the attach dialog and what they show at first.
#include "xref/attach_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleValidator>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>

namespace {

template <class Control> Control* named(Control* control, const char* objectName) {
    control->setObjectName(QLatin1String(objectName));
    return control;
}

QLineEdit* readOnlyEdit(QWidget* parent, const char* objectName) {
    auto* const edit = named(new QLineEdit(parent), objectName);
    edit->setReadOnly(true);
    // Drawn like the window around it, so that nobody tries to type there.
    QPalette colors = edit->palette();
    colors.setBrush(QPalette::Base, colors.brush(QPalette::Window));
    edit->setPalette(colors);
    return edit;
}

QPushButton* bottomButton(QWidget* parent, const QString& label, const char* objectName) {
    auto* const button = named(new QPushButton(label, parent), objectName);
    button->setMinimumWidth(80);
    button->setFixedHeight(25);
    return button;
}

} // namespace

void hostInsertExternalReferenceDialog::build() {
    buildFileControls();
    buildPlaceControls();
    buildNumberEdits();
    okButton = bottomButton(this, tr("OK"), "okButton");
    okButton->setDefault(true); // or Return in an edit would press Browse, the first button
    cancelButton = bottomButton(this, tr("Cancel"), "cancelButton");
    helpButton = bottomButton(this, tr("Help"), "helpButton");
}

void hostInsertExternalReferenceDialog::buildFileControls() {
    nameCombo = named(new QComboBox(this), "nameCombo");
    nameCombo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    nameCombo->setFixedHeight(25);
    browseButton = bottomButton(this, tr("Browse..."), "browseButton");
    foundInEdit = readOnlyEdit(this, "foundInEdit");
    foundInEdit->setFixedHeight(25);
    savedPathEdit = readOnlyEdit(this, "savedPathEdit");
    savedPathEdit->setFixedHeight(25);
    pathTypeCombo = named(new QComboBox(this), "pathTypeCombo");
    pathTypeCombo->addItems({tr("Relative path"), tr("Full path"), tr("No path")});
    previewLabel = named(new QLabel(this), "previewLabel");
    previewLabel->setFixedSize(200, 200);
    previewLabel->setAlignment(Qt::AlignCenter);
    unitEdit = readOnlyEdit(this, "unitEdit");
    factorEdit = readOnlyEdit(this, "factorEdit");
}

void hostInsertExternalReferenceDialog::buildPlaceControls() {
    attachmentRadio = named(new QRadioButton(tr("Attachment"), this), "attachmentRadio");
    overlayRadio = named(new QRadioButton(tr("Overlay"), this), "overlayRadio");
    auto* const types = new QButtonGroup(this);
    types->addButton(attachmentRadio);
    types->addButton(overlayRadio);
    const QString onScreen = tr("Specify On-screen");
    scaleOnScreenCheck = named(new QCheckBox(onScreen, this), "scaleOnScreenCheck");
    rotationOnScreenCheck = named(new QCheckBox(onScreen, this), "rotationOnScreenCheck");
    insertionOnScreenCheck = named(new QCheckBox(onScreen, this), "insertionOnScreenCheck");
    uniformScaleCheck = named(new QCheckBox(tr("&Uniform Scale"), this), "uniformScaleCheck");
    autoZoomCheck = named(new QCheckBox(tr("Auto zoom"), this), "autoZoomCheck");
}

void hostInsertExternalReferenceDialog::buildNumberEdits() {
    auto* const validator = new QDoubleValidator(this);
    validator->setNotation(QDoubleValidator::StandardNotation);
    validator->setLocale(QLocale(QLocale::English));
    const auto numberEdit = [&](const char* objectName) {
        auto* const edit = named(new QLineEdit(this), objectName);
        edit->setValidator(validator);
        return edit;
    };
    scaleXEdit = numberEdit("scaleXEdit");
    scaleYEdit = numberEdit("scaleYEdit");
    scaleZEdit = numberEdit("scaleZEdit");
    insertXEdit = numberEdit("insertXEdit");
    insertYEdit = numberEdit("insertYEdit");
    insertZEdit = numberEdit("insertZEdit");
    angleEdit = numberEdit("angleEdit");
    angleEdit->setToolTip(angleUnit.name().isEmpty()
                              ? tr("In radians, counterclockwise from the X axis.")
                              : tr("In %1, as at the prompts of this drawing.").arg(angleUnit.name()));
}

void hostInsertExternalReferenceDialog::setDefaults() {
    attachmentRadio->setChecked(true);
    insertionOnScreenCheck->setChecked(true);
    for (QLineEdit* edit : {insertXEdit, insertYEdit, insertZEdit})
        edit->setEnabled(false);
    for (QLineEdit* edit : {scaleXEdit, scaleYEdit, scaleZEdit})
        edit->setText(QString::number(1.0, 'g', 6));
    for (QLineEdit* edit : {insertXEdit, insertYEdit, insertZEdit})
        edit->setText(QString::number(0.0, 'g', 6));
    angleEdit->setText(angleUnit.number(0));
    pathTypeCombo->setCurrentIndex(1);
}
