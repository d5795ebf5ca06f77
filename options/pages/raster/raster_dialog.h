// The dialog for one raster format, new or existing. It has no meta-object: its words are translated in the
// context QDialog.
#pragma once

#include <QDialog>

class QLayout;
class QLineEdit;
class QPushButton;
class RasterFormat;

// OK writes into the record, which must outlive the dialog. A refused extension leaves a new name written.
class RasterDialog : public QDialog {
public:
    RasterDialog(QWidget* parent, RasterFormat* format, bool isNew);

    QPushButton* okButton = nullptr;
    QPushButton* cancelButton = nullptr;
    QPushButton* optionsButton = nullptr;
    const QString forbiddenNameChars;
    const QString forbiddenExtChars;
    QLineEdit* nameEdit = nullptr;
    QLineEdit* descriptionEdit = nullptr;
    QLineEdit* extensionEdit = nullptr;

private:
    void build();
    QLineEdit* makeEdit(const QString& objectName, const QString& text);
    QPushButton* makeButton(const QString& objectName, const QString& text);
    void layOut();
    QLayout* layOutEdits();
    QLayout* layOutButtons();
    void connectAll();
    void onOkClicked();
    const char* resolveSettings(); // the module with the format's settings, or null

    RasterFormat* record;
    bool isNewFormat;
};
