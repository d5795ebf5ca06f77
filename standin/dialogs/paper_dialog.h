// The host's dialog for a new or a changed paper: name, unit, size, margins, and whether it is offered.
#pragma once

#include "standin/dialogs/paper_sheet.h"

#include <QDialog>
#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace standin {

class LengthEdit;

class PaperDialog : public QDialog {
    Q_OBJECT
public:
    PaperDialog(QWidget* parent, const PaperSheet& sheet);
    PaperSheet sheet() const; // what is entered; sensible after the dialog was accepted

private:
    // An edit with the place for its error.
    struct Field {
        QLineEdit* edit;
        QLabel* error;
        QString (PaperDialog::*check)() const;
        bool touched; // a field that nobody has been in shows no error before OK
    };
    void build();
    void layOut();
    void addField(QFormLayout* form, const QString& label, QLineEdit* edit, const char* name,
                  QString (PaperDialog::*check)() const);
    void fill(const PaperSheet& sheet);
    void connectAll();
    void convertUnits();
    void showErrors();
    void showOtherUnit();
    void acceptIfRight();
    QString checkName() const;
    QString checkWidth() const;
    QString checkHeight() const;
    QString checkLeft() const;
    QString checkRight() const;
    QString checkTop() const;
    QString checkBottom() const;
    QString checkSize(const LengthEdit* edit) const;
    QString checkMargin(const LengthEdit* edit, const LengthEdit* opposite, const LengthEdit* size) const;
    QString units() const;

    QLineEdit* nameEdit = nullptr;
    QComboBox* unitsCombo = nullptr;
    LengthEdit *widthEdit = nullptr, *heightEdit = nullptr;
    LengthEdit *leftEdit = nullptr, *rightEdit = nullptr, *topEdit = nullptr, *bottomEdit = nullptr;
    QLabel* otherUnitLabel = nullptr;
    QCheckBox* usedCheck = nullptr;
    QPushButton *okButton = nullptr, *cancelButton = nullptr;
    std::vector<Field> fields;
    QString shownUnits; // what the lengths are in at the moment
};

} // namespace standin
