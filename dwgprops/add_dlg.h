// The dialog that asks for the name and the value of a new custom property. Who opens it checks the name: OK
// alone closes nothing.
#pragma once

#include <QDialog>

class QHBoxLayout;
class QLineEdit;
class QPushButton;

class AddDlg : public QDialog {
    Q_OBJECT
public:
    explicit AddDlg(QWidget* parent);

    QLineEdit* valueEdit;
    QLineEdit* nameEdit;
    QPushButton* okButton;
    QPushButton* cancelButton;

private:
    void build();
    void layOut();
    QHBoxLayout* buttonRow() const;
};
