// Works the modal dialogs of a command as a user does: one step at a time, each on the dialog that is in
// front.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <deque>
#include <functional>

class DialogUser : public QObject {
public:
    using Step = std::function<void(QDialog& dialog)>;
    DialogUser() { look(); }

    DialogUser& then(Step step) {
        steps.push_back(std::move(step));
        return *this;
    }
    DialogUser& click(const char* button) {
        return then([button](QDialog& dialog) { clickIn(dialog, button); });
    }
    bool finished() const { return steps.empty() && leftOver == 0; }

    static void clickIn(QDialog& dialog, const char* button) {
        dialog.findChild<QAbstractButton*>(QLatin1String(button))->click();
    }
    int leftOver = 0; // dialogs that came up after the last step; they are ended, so that no test hangs

private:
    // The next look is arranged before the step: it may open a dialog of its own.
    void look() {
        QTimer::singleShot(5, this, [this] {
            look();
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            if (steps.empty()) {
                ++leftOver;
                dialog->done(3);
                return;
            }
            const Step step = std::move(steps.front());
            steps.pop_front();
            step(*dialog);
        });
    }
    std::deque<Step> steps;
};

template <class Widget> Widget& in(const QDialog& dialog, const char* name) {
    return *dialog.findChild<Widget*>(QLatin1String(name));
}
