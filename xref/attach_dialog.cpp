// Start and end of the attach dialog: the parameter map on the way in, the attaching on the way out.
#include "xref/attach_dialog.h"

#include "host/text.h"
#include "host/typed_reads.h"
#include "xref/attach_host.h"
#include "xref/attach_messages.h"
#include "xref/attach_reference.h"
#include "xref/create_xref_reference.h"
#include "xref/xref_paths.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

hostInsertExternalReferenceDialog::hostInsertExternalReferenceDialog(QWidget* parent, IParam* params)
    : QDialog(parent), database(attach::database()), depth(database) {
    depth.begin();
    build();
    setAttribute(Qt::WA_MouseTracking);
    layOut();
    setDefaults();
    loadAttachSettings();
    readPlacement(params);
    readTypes(params);
    readChecks(params);
    if (!takeName(params) || !takePath(params))
        return;
    connectSignals();
    if (!multipleFiles)
        fillNames();
    refreshForName(name);
    setEnabledStates();
    onUniformChanged();
    initialized = true;
}

hostInsertExternalReferenceDialog::~hostInsertExternalReferenceDialog() { depth.abort(); }

namespace {

// A value of the map in place of the number that the edit shows, with all its digits and no exponent, which
// the edit would not take.
void readNumber(IParam* params, const char* key, QLineEdit* edit) {
    double value = 0;
    if (readValue(params, key, &value))
        edit->setText(QString::number(value, 'f', QLocale::FloatingPointShortest));
}

void readCheck(IParam* params, const char* key, QCheckBox* check) {
    int value = check->isChecked();
    readValue(params, key, &value);
    check->setChecked(value != 0);
}

QString readText(IParam* params, const char* key) {
    CXStringW text;
    readValue(params, key, &text);
    return hostqt::qString(text);
}

} // namespace

void hostInsertExternalReferenceDialog::readPlacement(IParam* params) {
    for (QLineEdit* edit : {insertXEdit, insertYEdit, insertZEdit})
        readNumber(params, "INSERTION_POINT", edit);
    for (QLineEdit* edit : {scaleXEdit, scaleYEdit, scaleZEdit})
        readNumber(params, "SCALE", edit);
}

void hostInsertExternalReferenceDialog::readTypes(IParam* params) {
    int row = 0;
    if (readValue(params, "PATH_TYPE", &row) && row >= 0 && row < pathTypeCombo->count())
        pathTypeCombo->setCurrentIndex(row);
    int overlay = isOverlay();
    readValue(params, "REFERENCE_TYPE", &overlay);
    (overlay ? overlayRadio : attachmentRadio)->setChecked(true);
    readNumber(params, "ROTATION", angleEdit);
}

void hostInsertExternalReferenceDialog::readChecks(IParam* params) {
    readCheck(params, "SCALE_SPECIFY_ON_SCREEN", scaleOnScreenCheck);
    readCheck(params, "ROTATION_SPECIFY_ON_SCREEN", rotationOnScreenCheck);
    readCheck(params, "INSERTION_POINT_SPECIFY_ON_SCREEN", insertionOnScreenCheck);
    readCheck(params, "UNIFORM_SCALE", uniformScaleCheck);
    readCheck(params, "AUTO_ZOOM", autoZoomCheck);
}

bool hostInsertExternalReferenceDialog::takeName(IParam* params) {
    const QString given = readText(params, "NAME");
    if (given.isEmpty())
        return true;
    name = given;
    if (attach::isUnsaved())
        attach::notice(kFileNotice, attach::word(kDrawingNotSaved));
    QString found;
    if (!siblingFilePath(relativeBase(database), name, found)) {
        attach::notice(kFileNotice, attach::word(kNotOnOneDisk));
        return true;
    }
    savedPathEdit->setText(found);
    path = found;
    if (!makeReference(found))
        return false;
    savedPathEdit->setText(path);
    foundInEdit->setText(path);
    pathTypeCombo->setCurrentIndex(0);
    return true;
}

bool hostInsertExternalReferenceDialog::takePath(IParam* params) {
    const QString given = readText(params, "PATH");
    if (given.isEmpty())
        return true;
    const QStringList parts = given.split(QLatin1Char(';'));
    multipleFiles = parts.size() > 1;
    path = given;
    if (!multipleFiles)
        return takeSingleFile();
    takeSeveralFiles();
    return true;
}

bool hostInsertExternalReferenceDialog::takeSingleFile() {
    const QFileInfo file(path);
    fileName = file.fileName();
    name = file.baseName().trimmed();
    foundInEdit->setText(path);
    savedPathEdit->setText(path);
    // Without a name there is nothing to call the block, and nothing that may throw for the file here.
    return !name.isEmpty() && makeReference(path);
}

void hostInsertExternalReferenceDialog::takeSeveralFiles() {
    browseButton->setEnabled(false);
    nameCombo->addItem(tr("Varies"), tr("Varies"));
    nameCombo->setCurrentIndex(nameCombo->findData(tr("Varies"), Qt::DisplayRole, Qt::MatchCaseSensitive));
    nameCombo->setEnabled(false);
    for (QCheckBox* check : {scaleOnScreenCheck, insertionOnScreenCheck, rotationOnScreenCheck}) {
        check->setChecked(false);
        check->setEnabled(false);
    }
    foundInEdit->setText(tr("Varies"));
    savedPathEdit->setText(tr("Varies"));
    for (QLineEdit* edit :
         {scaleXEdit, scaleYEdit, scaleZEdit, insertXEdit, insertYEdit, insertZEdit, angleEdit})
        edit->setEnabled(true);
    fillEntries(path, entries);
}

// The reference made here is only proof of the definition: accept makes its own.
bool hostInsertExternalReferenceDialog::makeReference(const QString& file) {
    OdDbBlockReferencePtr reference;
    bool hadDefinition = false;
    OdDbObjectId blockId;
    return createXRefReference(file, name, isOverlay(), reference, hadDefinition, blockId);
}

void hostInsertExternalReferenceDialog::accept() {
    const OdGePoint3d insertionPoint(insertXEdit->text().toDouble(), insertYEdit->text().toDouble(),
                                     insertZEdit->text().toDouble());
    const double rotation = angleEdit->text().toDouble();
    OdGeScale3d scale;
    if (!scaleOnScreenCheck->isChecked())
        scale = OdGeScale3d(scaleXEdit->text().toDouble(), scaleYEdit->text().toDouble(),
                            scaleZEdit->text().toDouble());
    const int row = pathTypeCombo->currentIndex();
    const int pathType = row == 0 ? kRelativePath : row == 1 ? kFullPath : kFileNameOnly;
    saveAttachSettings();
    hide(); // so that the prompts have the drawing before them; the result follows all the same
    bool allAttached = true; // a failure keeps none of the files behind it from being tried, on purpose
    for (const QString& file : path.split(QLatin1Char(';')))
        if (!attachReference(hostqt::odString(file), insertionPoint, scale, isOverlay(),
                             scaleOnScreenCheck->isChecked(), insertionOnScreenCheck->isChecked(),
                             rotationOnScreenCheck->isChecked(), uniformScaleCheck->isChecked(), pathType,
                             autoZoomCheck->isChecked(), rotation))
            allAttached = false;
    if (allAttached)
        QDialog::accept();
    else
        QDialog::reject();
}

bool hostInsertExternalReferenceDialog::isOverlay() const { return !attachmentRadio->isChecked(); }

#include "moc_attach_dialog.cpp"
