// Walks through the members of a group and highlights one at a time.
#pragma once

#include "sdk/db/group.h"

#include <QDialog>

class HostDocument;
class QLabel;
class QPushButton;

class CObjHighlightDlg : public QDialog {
    Q_OBJECT
public:
    CObjHighlightDlg(QWidget* parent, const OdDbGroupPtr& group, HostDocument* document);

protected:
    void closeEvent(QCloseEvent* event) override; // counts as OK

private:
    void build();
    void layOut();
    void connectControls();
    void showIndex();
    void highlightCurrent(bool on);
    void stepBack();
    void stepOn();
    void finish();

    OdDbObjectIdArray ids;
    HostDocument* document;
    unsigned index = 0;
    QPushButton* prevButton;
    QPushButton* nextButton;
    QPushButton* okButton;
    QLabel* objectLabel;
    QLabel* totalLabel;
};
