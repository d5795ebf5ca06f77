// An event loop of the module's own in the place of QDialog::exec, so that an exception can leave it cleanly.
#include "host/modal_runner.h"

#include "host/loop_exceptions.h"
#include "host/mnemonics.h"

#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <exception>

namespace {

// Restores the dialog's own modality when the run is over.
class ModalAttribute {
public:
    explicit ModalAttribute(QDialog& target)
        : dialog(&target), before(target.testAttribute(Qt::WA_ShowModal)) {
        dialog->setAttribute(Qt::WA_ShowModal, true);
    }
    ~ModalAttribute() {
        if (dialog)
            dialog->setAttribute(Qt::WA_ShowModal, before);
    }
    ModalAttribute(const ModalAttribute&) = delete;
    ModalAttribute& operator=(const ModalAttribute&) = delete;

private:
    QPointer<QDialog> dialog;
    bool before;
};

// Ends the loop when the dialog is hidden, by whatever way, as QDialog::exec does. Minimising is not hiding.
class QuitWhenHidden : public QObject {
public:
    explicit QuitWhenHidden(QEventLoop& target) : loop(target) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            loop.quit();
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoop& loop;
};

void runUntilHidden(QDialog& dialog) {
    QEventLoop loop;
    QuitWhenHidden quitWhenHidden(loop);
    dialog.installEventFilter(&quitWhenHidden);
    dialog.show();
    runLoop(loop, QEventLoop::DialogExec);
}

} // namespace

int runModal(QDialog& dialog) {
    const ModalAttribute modal(dialog);
    std::exception_ptr thrown;
    dialog.setResult(0);
    giveMnemonics(dialog);
    try {
        runUntilHidden(dialog);
    } catch (...) {
        thrown = std::current_exception();
    }
    if (thrown) {
        dialog.hide();
        std::rethrow_exception(thrown);
    }
    return dialog.result();
}
