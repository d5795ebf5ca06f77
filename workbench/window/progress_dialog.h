// Shows how far the reading, the writing or the picture of a drawing has come when that takes longer than a
// moment, and lets the user cancel it.
#pragma once

#include "sdk/db/progress.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>

namespace workbench {

// Shows whatever is read, written or prepared as long as it lives.
class ProgressDialog : public OdDbProgressMeter {
public:
    ProgressDialog();
    ~ProgressDialog() override;
    ProgressDialog(const ProgressDialog&) = delete;
    ProgressDialog& operator=(const ProgressDialog&) = delete;

    void setDelay(int milliseconds) { delay = milliseconds; } // until it is shown
    bool proceed(Work work, double part) override;

private:
    void begin(Work work);
    void show();
    QString title() const;

    int delay = 500;
    Work present = kReading;
    double reached = 2; // beyond the end: nothing goes on
    QElapsedTimer sinceBegin, sinceUpdate;
    QPointer<QProgressDialog> dialog;
};

} // namespace workbench
