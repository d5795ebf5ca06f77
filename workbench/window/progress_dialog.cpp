#include "workbench/window/progress_dialog.h"

#include "host/qt_ui_core.h"

#include <QCoreApplication>

namespace workbench {

namespace {

const int updateInterval = 40; // milliseconds
const int steps = 1000;

QString tr(const char* text) { return QCoreApplication::translate("ProgressDialog", text); }

} // namespace

ProgressDialog::ProgressDialog() { odDbSetProgressMeter(this); }

ProgressDialog::~ProgressDialog() {
    if (odDbProgressMeter() == this)
        odDbSetProgressMeter(nullptr);
    delete dialog;
}

void ProgressDialog::begin(Work work) {
    present = work;
    sinceBegin.start();
    sinceUpdate.start();
}

QString ProgressDialog::title() const {
    switch (present) {
    case kReading:
        return tr("Reading the drawing...");
    case kWriting:
        return tr("Saving the drawing...");
    case kShowing:
        return tr("Preparing the picture...");
    case kSelecting:
        return tr("Selecting the objects...");
    case kListing:
        return tr("Listing the objects...");
    }
    return {};
}

void ProgressDialog::show() {
    dialog = new QProgressDialog(title(), tr("Cancel"), 0, steps, host_qt_ui_core::parentForDialog());
    dialog->setObjectName(QStringLiteral("progressDialog"));
    dialog->setWindowTitle(tr("Workbench"));
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->setAutoReset(false);
    dialog->setMinimumDuration(0);
    dialog->show();
}

// Work that starts over, or goes on after its end, is other work.
bool ProgressDialog::proceed(Work work, double part) {
    if (work != present || part < reached)
        begin(work);
    reached = part;
    if (part >= 1) {
        reached = 2;
        delete dialog;
        return true;
    }
    if (!dialog && sinceBegin.elapsed() >= delay)
        show();
    if (!dialog || sinceUpdate.elapsed() < qMin(updateInterval, delay))
        return true;
    sinceUpdate.start();
    dialog->setValue(static_cast<int>(part * steps)); // lets the window live
    QCoreApplication::processEvents();
    // Escape cancels by a shortcut, which a window that has just appeared does not have yet: it is only
    // hidden.
    const bool cancelled = !dialog || dialog->wasCanceled() || dialog->isHidden();
    if (cancelled) {
        reached = 2;
        delete dialog;
    }
    return !cancelled;
}

} // namespace workbench
