// The dialog "Order Group": moves members inside a group's order and reverses it.
#pragma once

#include "groups/group_data.h"

#include <QDialog>

class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

class CGroupReorderDlg : public QDialog {
    Q_OBJECT
public:
    enum Result { kAccepted = 1, kCancelled = 3, kHighlight = 10 };

    // `data` is used as long as the dialog is shown.
    CGroupReorderDlg(QWidget* parent, OdDbObjectId groupDictionaryId, GroupData& data);

private:
    void build();
    void buildEdits();
    void buildButtons();
    void layOut();
    QGroupBox* descriptionBox();
    QGroupBox* editsBox();
    QHBoxLayout* editRow(QLabel* label, QLineEdit* edit);
    void connectControls();
    void fillTable();
    void addRow(const OdString& key, OdDbObjectId id, const OdDbGroupPtr& group);
    void chooseFirstRow();

    void refreshOrderFields(bool store);
    OdDbGroupPtr groupOfRow(int row) const;
    void showGroup(const OdDbGroupPtr& group);

    void reorder();
    void refuse(const QString& message, QLineEdit* edit);
    void reverseOrder();
    void highlightMembers();

    OdDbObjectId dictionaryId;
    GroupData* data;
    QTableWidget* groupTable;
    QLabel* descriptionLabel;
    QLabel* removeFromLabel;
    QLineEdit* removeFromEdit;
    QLabel* newPositionLabel;
    QLineEdit* newPositionEdit;
    QLabel* countLabel;
    QLineEdit* countEdit;
    QPushButton* reorderButton;
    QPushButton* highlightButton;
    QPushButton* reverseButton;
    QPushButton* okButton;
    QPushButton* cancelButton;
    QPushButton* helpButton;
    QLabel* messageLabel;
};

// Digits with blanks around them, of any script that Qt's number parser takes; false for anything else.
bool parsePosition(const QString& text, int& value);
