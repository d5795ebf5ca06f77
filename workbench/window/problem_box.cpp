// Opens the box and fills it.
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
    if (!box || !box->isVisible()) {
        QWidget* const dialog = openDialog();
        if (!dialog)
            return;
        open(*dialog);
    }
    if (!problems.contains(problem))
        problems << problem;
    box->setText(problems.join(QStringLiteral("\n\n")));
}

void ProblemBox::open(QWidget& over) {
    problems.clear();
    box = new QMessageBox(QMessageBox::Warning, QCoreApplication::translate("ProblemBox", "Workbench"), {},
                          QMessageBox::Ok, &over);
    box->setObjectName(QStringLiteral("problemBox"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace workbench
