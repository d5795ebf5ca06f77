// The dialog for one directory of a list.
#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

// Leaves the chosen path in the caller's string, which must outlive the dialog. A missing path that is the
// one given at construction is accepted with the caller's string untouched; an empty one is accepted too.
class DirsDialog : public QDialog {
    Q_OBJECT
public:
    DirsDialog(QString& path, QWidget* parent);

private slots:
    void onOkClicked();
    void onBrowseClicked();

private:
    void build();
    void layOut();
    void connectAll();
    bool confirmMissing(const QString& text);
    void acceptWith(const QString& path);

    QLineEdit* lineEdit = nullptr;
    QPushButton* okButton = nullptr;
    QPushButton* cancelButton = nullptr;
    QPushButton* browseButton = nullptr;
    QString startPath;
    QString* result; // not QDialog::result(), which is still there under its full name
};
