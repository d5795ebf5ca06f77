// Puts a notice in front of the user, in a box and on the console.
#include "standin/events/events.h"

#include "host/qt_ui_core.h"
#include "host/text.h"

#include <QCoreApplication>

namespace standin {

using host_qt_ui_core::QHostMessageBox;

Events::Events(std::function<void(const QString& text)> printOnConsole, std::function<bool()> boxes)
    : print(std::move(printOnConsole)), showsBoxes(std::move(boxes)) {}

int Events::notify(int kind, const wchar_t* text, int, int) {
    const QString message = hostqt::qString(text);
    if (print)
        print(message);
    if (kind == kQuestion)
        return QHostMessageBox::question(message, EV_MB_YES | EV_MB_NO) == EV_MB_YES ? kAnswerOk
                                                                                     : kAnswerCancel;
    if (showsBoxes())
        QHostMessageBox::critical(QCoreApplication::applicationName(), message, EV_MB_OK);
    return kAnswerOk;
}

} // namespace standin
