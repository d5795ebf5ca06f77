// Fills the box and opens it.
#include "workbench/window/problem_box.h"

#include <QApplication>
#include <QProgressDialog>

namespace workbench {

namespace {

// The dialog that a box can stand on; one that shows progress is gone before anybody has read it.
QWidget* openDialog() {
    QWidget* const dialog = QApplication::activeModalWidget();
    return qobject_cast<QProgressDialog*>(dialog) ? nullptr : dialog;
}

} // namespace

void ProblemBox::show(const QString& problem) {
    const bool isOpen = box && box->isVisible();
    if (!isOpen) {
        QWidget* const dialog = openDialog();
        if (!dialog)
            return;
        make(*dialog);
    }
    if (!problems.contains(problem))
        problems << problem;
    box->setText(problems.join(QStringLiteral("\n\n")));
    if (!isOpen)
        box->open(); // with its text, so that it comes up in the middle of the dialog
}

void ProblemBox::make(QWidget& over) {
    problems.clear();
    box = new QMessageBox(QMessageBox::Warning, QCoreApplication::translate("ProblemBox", "Workbench"), {},
                          QMessageBox::Ok, &over);
    box->setObjectName(QStringLiteral("problemBox"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
}

} // namespace workbench
