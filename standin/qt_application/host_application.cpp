// Catches exceptions where events are delivered, and gives them on.
#include "standin/qt_application/host_application.h"

#include "standin/console/error_text.h"
#include "standin/sysvars/read_variable.h"

#include <QThread>
#include <QWidget>
#include <cstdio>

namespace standin {

namespace {

// Keeps a value for a scope.
class Keep {
public:
    Keep(int& variable, int value) : target(variable), former(variable) { target = value; }
    ~Keep() { target = former; }
    Keep(const Keep&) = delete;
    Keep& operator=(const Keep&) = delete;

private:
    int& target;
    int former;
};

// Events that a loop takes from its sources, also the loop of QCoreApplication::processEvents, which has no
// level of its own. All others may have been sent by code, whose business their exceptions are.
bool comesFromSource(const QEvent& event) {
    return event.spontaneous() || event.type() == QEvent::Timer || event.type() == QEvent::MetaCall ||
           event.type() == QEvent::DeferredDelete;
}

// A dialog or menu of Qt's own that runs a loop ends it when it is hidden.
void closeTopmost() {
    if (QWidget* const popup = QApplication::activePopupWidget())
        popup->hide();
    else if (QWidget* const dialog = QApplication::activeModalWidget())
        dialog->hide();
}

// The variable TOOLTIPS. Tips are shown where it cannot be read.
bool showsToolTips() {
    const OdResBufPtr value = readVariable(L"TOOLTIPS");
    return value.isNull() || value->getBool();
}

} // namespace

HostApplication::HostApplication(int& argc, char** argv)
    : QApplication(argc, argv), exceptions(Ref<LoopExceptions>::share(new LoopExceptions)),
      consoleExtension(this) {}
HostApplication::~HostApplication() = default;

QObject* HostApplication::extension(const QString& id) {
    return id == QLatin1String("oda.IqConsole") ? &consoleExtension : nullptr;
}

Ref<ILoopExceptions> HostApplication::loopExceptions() const { return exceptions; }

bool HostApplication::notify(QObject* receiver, QEvent* event) {
    if (QThread::currentThread() != thread())
        return QApplication::notify(receiver, event);
    if (event->type() == QEvent::ToolTip && !showsToolTips())
        return true;
    const int level = QThread::currentThread()->loopLevel();
    if (level > deliveringLevel || (level > 0 && comesFromSource(*event)))
        return deliver(receiver, event, level);
    return QApplication::notify(receiver, event);
}

bool HostApplication::deliver(QObject* receiver, QEvent* event, int level) {
    bool result = true;
    std::exception_ptr thrown;
    {
        const Keep guard(deliveringLevel, level);
        try {
            result = QApplication::notify(receiver, event);
        } catch (...) {
            thrown = std::current_exception();
        }
    }
    if (thrown && !exceptions->keep(thrown))
        tell(thrown);
    if (exceptions->isWaiting())
        giveOn(level);
    return result;
}

void HostApplication::giveOn(int level) {
    if (exceptions->giveTo(level))
        return;
    if (level > 1)
        closeTopmost();
    else
        tell(exceptions->take());
}

void HostApplication::tell(const std::exception_ptr& thrown) const {
    const QString problem = errorTextOf([&] { std::rethrow_exception(thrown); });
    if (report)
        report(problem);
    else
        std::fprintf(stderr, "%s\n", qPrintable(problem));
}

} // namespace standin

#include "moc_host_application.cpp"
