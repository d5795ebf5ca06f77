// A list of texts about a group's members, to be read only.
#pragma once

#include <QDialog>
#include <QStringList>

class QListWidget;
class QPushButton;

class CGroupMemberDlg : public QDialog {
    Q_OBJECT
public:
    CGroupMemberDlg(QWidget* parent, const QStringList& texts);

private:
    QStringList texts;
    QListWidget* memberList;
    QPushButton* okButton;
};
