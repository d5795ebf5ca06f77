// Answers the file dialogs that a test opens, as a user at Qt's own dialog does.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

// Waits for the next file dialog, notes what it shows, and types `answer` into it, or cancels it when the
// answer is empty. It must live until the dialog has been answered.
class FileDialogDriver : public QObject {
public:
    explicit FileDialogDriver(const QString& answerText = {}) : answer(answerText) {
        connect(&timer, &QTimer::timeout, this, &FileDialogDriver::look);
        timer.start(10);
    }

    bool shown = false;
    QString directory;   // where it stood when it opened
    QStringList filters; // its name filters
    QFileDialog::FileMode mode = QFileDialog::AnyFile;
    bool directoriesOnly = false;
    QWidget* parentWidget = nullptr;

private:
    void look() {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer.stop();
        note(*dialog);
        if (answer.isEmpty()) {
            dialog->reject();
            return;
        }
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(answer);
        auto* box = dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
        QAbstractButton* open = box->button(QDialogButtonBox::Open);
        (open ? open : box->buttons().front())->click();
        if (dialog->isVisible())
            dialog->reject(); // the answer was refused; the test sees that nothing came of it
    }
    void note(const QFileDialog& dialog) {
        shown = true;
        directory = dialog.directory().absolutePath();
        filters = dialog.nameFilters();
        mode = dialog.fileMode();
        directoriesOnly = dialog.testOption(QFileDialog::ShowDirsOnly);
        parentWidget = dialog.parentWidget();
    }

    QString answer;
    QTimer timer;
};
