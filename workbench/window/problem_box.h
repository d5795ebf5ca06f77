// Shows problems over a modal dialog, behind which the console can't be seen.
#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QStringList>

namespace workbench {

class ProblemBox {
public:
    // Does not wait for the user. Nothing happens when no modal dialog is open. While the box is open it
    // gathers what comes, each text once; it goes with the dialog.
    void show(const QString& problem);

private:
    void make(QWidget& over);

    QPointer<QMessageBox> box;
    QStringList problems; // in the box
};

} // namespace workbench
