// Start and end of the attach dialog: the parameter map on the way in, the attaching on the way out.
#include "xref/attach_dialog.h"

#include "host/command_io.h"
#include "host/dialog_habits.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "xref/attach_host.h"
#include "xref/attach_messages.h"
#include "xref/attach_reference.h"
#include "xref/create_xref_reference.h"
#include "xref/reference_row.h"
#include "xref/xref_paths.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

hostInsertExternalReferenceDialog::hostInsertExternalReferenceDialog(QWidget* parent, IParam* params)
    : QDialog(parent), database(attach::database()), depth(database),
      placedApart(hasHabit(DialogHabit::FilesPlacedApart)) {
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
    double rotation = 0;
    if (readValue(params, "ROTATION", &rotation))
        angleEdit->setText(angleUnit.number(rotation));
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
    path = found;
    if (!makeReference(found))
        return false;
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
    // Without a name there is nothing to call the block, and nothing that may throw for the file here.
    return !name.isEmpty() && makeReference(path);
}

void hostInsertExternalReferenceDialog::takeSeveralFiles() {
    browseButton->setEnabled(false);
    nameCombo->addItem(tr("Varies"), tr("Varies"));
    nameCombo->setCurrentIndex(nameCombo->findData(tr("Varies"), Qt::DisplayRole, Qt::MatchCaseSensitive));
    nameCombo->setEnabled(false);
    for (QCheckBox* check : {scaleOnScreenCheck, insertionOnScreenCheck, rotationOnScreenCheck}) {
        if (placedApart)
            break;
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
    saveAttachSettings();
    hide(); // so that the prompts have the drawing before them; the result follows all the same
    if (attachFiles())
        QDialog::accept();
    else
        QDialog::reject();
}

// A failure keeps none of the files behind it from being tried, on purpose; where files are placed one after
// the other, it or Escape ends the placing.
bool hostInsertExternalReferenceDialog::attachFiles() {
    const QStringList files = path.split(QLatin1Char(';'));
    const bool apart = placedApart && files.size() > 1;
    ReferenceRow row;
    bool allAttached = true;
    for (int i = 0; i < files.size() && (allAttached || !apart); ++i) {
        if (apart)
            reportToConsole(attach::io(), hostqt::odString(tr("Placing %1 (%2 of %3).")
                                                               .arg(QFileInfo(files[i]).fileName())
                                                               .arg(i + 1)
                                                               .arg(files.size())));
        const bool inRow = apart && !insertionOnScreenCheck->isChecked();
        allAttached = attachFile(files[i], inRow ? &row : nullptr) && allAttached;
    }
    return allAttached;
}

OdGeScale3d hostInsertExternalReferenceDialog::wantedScale() const {
    if (scaleOnScreenCheck->isChecked())
        return {};
    return {scaleXEdit->text().toDouble(), scaleYEdit->text().toDouble(), scaleZEdit->text().toDouble()};
}

bool hostInsertExternalReferenceDialog::attachFile(const QString& file, ReferenceRow* row) const {
    const OdGePoint3d insertionPoint(insertXEdit->text().toDouble(), insertYEdit->text().toDouble(),
                                     insertZEdit->text().toDouble());
    const int listRow = pathTypeCombo->currentIndex();
    const int pathType = listRow == 0 ? kRelativePath : listRow == 1 ? kFullPath : kFileNameOnly;
    return attachReference(hostqt::odString(file), insertionPoint, wantedScale(), isOverlay(),
                           scaleOnScreenCheck->isChecked(), insertionOnScreenCheck->isChecked(),
                           rotationOnScreenCheck->isChecked(), uniformScaleCheck->isChecked(), pathType,
                           autoZoomCheck->isChecked(), angleUnit.radians(angleEdit->text()), row);
}

bool hostInsertExternalReferenceDialog::isOverlay() const { return !attachmentRadio->isChecked(); }

#include "moc_attach_dialog.cpp"
