// The dialog for attaching external references: which files, how their paths are kept, and where they go.
#pragma once

#include "host/param.h"
#include "host/transaction_guard.h"
#include "sdk/db/block_table.h"
#include "xref/angle_unit.h"

#include <QDialog>
#include <vector>

class OdDbXrefGraph;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class ReferenceRow;

struct XRefEntry {
    QString name, path, savedPath;
    bool flag = false; // the drawing has a block of that name
};

// Runs a transaction of its own: what is left open above the depth at its start is aborted when it is
// destroyed. Rows of the path type list: 0 relative, 1 full, 2 none.
class hostInsertExternalReferenceDialog : public QDialog {
    Q_OBJECT
public:
    // Reads the parameter map of the attach command; every key is optional, and so is the map.
    hostInsertExternalReferenceDialog(QWidget* parent, IParam* params);
    ~hostInsertExternalReferenceDialog() override;

    void accept() override;
    void onOK();
    void onBrowse();
    void onUniformChanged();
    void updatePathType();
    void updateUnit(const QString& blockName, OdDbBlockTableRecordPtr& record);
    void updateFromRecord(const OdDbBlockTableRecordPtr& record); // null counts as a reference not loaded
    void updatePreview();
    void fillNames();
    void refreshForName(const QString& blockName);

    QComboBox* nameCombo = nullptr;
    QComboBox* pathTypeCombo = nullptr;
    QPushButton* browseButton = nullptr;
    QPushButton* okButton = nullptr;
    QPushButton* cancelButton = nullptr;
    QPushButton* helpButton = nullptr;
    QCheckBox* scaleOnScreenCheck = nullptr;
    QCheckBox* rotationOnScreenCheck = nullptr;
    QCheckBox* insertionOnScreenCheck = nullptr;
    QCheckBox* uniformScaleCheck = nullptr;
    QCheckBox* autoZoomCheck = nullptr;
    QLineEdit* angleEdit = nullptr;
    QLineEdit *scaleXEdit = nullptr, *scaleYEdit = nullptr, *scaleZEdit = nullptr;
    QLineEdit *insertXEdit = nullptr, *insertYEdit = nullptr, *insertZEdit = nullptr;
    QLineEdit *foundInEdit = nullptr, *savedPathEdit = nullptr, *unitEdit = nullptr, *factorEdit = nullptr;
    QLabel* previewLabel = nullptr;
    QRadioButton *attachmentRadio = nullptr, *overlayRadio = nullptr;

    QString name;     // the block's
    QString path;     // several files: joined by ';'
    QString fileName; // of `path`
    bool multipleFiles = false;
    std::vector<XRefEntry> entries; // one for each file when there are several
    OdDbDatabasePtr database;
    DbTransactionGuard depth;
    const AngleUnit angleUnit = AngleUnit::wanted();
    const bool placedApart;   // several files; otherwise all go to one point, one on top of the other
    bool initialized = false; // false: the dialog is not to be shown

private:
    void build();
    void buildFileControls();
    void buildPlaceControls();
    void buildNumberEdits();
    void setDefaults();
    void layOut();
    QLayout* fileRow() const;
    QLayout* leftColumn();
    QLayout* middleColumn();
    QLayout* rightColumn();
    QLayout* buttonRow() const;
    void orderTabs() const;
    void nameForScreenReaders() const;
    void connectSignals();
    void connectChecks();
    void connectButtons();

    void loadAttachSettings();
    void saveAttachSettings() const;
    bool isOnScreenCheck(const QObject* control) const;
    void readPlacement(IParam* params);
    void readTypes(IParam* params);
    void readChecks(IParam* params);
    bool takeName(IParam* params); // false: the dialog is not to be shown
    bool takePath(IParam* params);
    bool takeSingleFile();
    void takeSeveralFiles();
    void setEnabledStates();
    bool makeReference(const QString& file);

    void updateSavedPath();
    void updateSavedPaths();
    void fallBackToFullPath(const wchar_t* reason);
    bool requireDistance(QLineEdit* edit, const wchar_t* message) const;
    bool requireFactor(QLineEdit* edit, bool free) const;
    bool isOverlay() const;
    bool attachFiles();
    bool attachFile(const QString& file, ReferenceRow* row) const;
    OdGeScale3d wantedScale() const;
    // The name that a chosen file can take; empty when the file is attached already and was taken over.
    OdString nameForChosenFile(const QString& candidate, const QString& native, const QString& baseFile);
    void takeReadable(const QString& native, const QString& baseFile);
    void eraseShownDefinition();
    void takeOver(const QString& candidate, const QString& native, const QString& baseFile);
    void replaceDefinition(const OdString& candidate, const QString& native, const QString& baseFile);
};

// Replaces `entries` by one for each part of the ';' list that isn't empty.
bool fillEntries(const QString& path, std::vector<XRefEntry>& entries);
// The preview that a drawing file carries; a null image when it has none that can be read.
QImage loadPreviewImage(const QString& path);
