// The application object of the stand-in: QApplication with the two interfaces that modules ask it for, and
// with a way for exceptions that does not lead through event loops.
#pragma once

#include "host/qt_application.h"
#include "standin/qt_application/loop_exceptions.h"

#include <QApplication>
#include <functional>

namespace standin {

// "oda.IqConsole" and the services, on the documents of HostDocManager().
class ConsoleExtension : public QObject, public IqConsole {
    Q_OBJECT
    Q_INTERFACES(IqConsole)
public:
    explicit ConsoleExtension(QObject* parent);
    ~ConsoleExtension() override;
    OdRxObject* currentDatabase() override;
};

class ApplicationServices : public IqServices {
public:
    OdRxObjectPtr newContext(int, int) override;
    OdSmartPtr<OdDbDatabase> readFile(const OdString& path, int, int, int shareMode,
                                      const OdString& password) override;
};

class HostApplication : public QApplication, public IqApplication {
    Q_OBJECT
    Q_INTERFACES(IqApplication)
public:
    HostApplication(int& argc, char** argv);
    ~HostApplication() override;

    QObject* extension(const QString& id) override;
    IqServices* services() override { return &applicationServices; }

    // No exception crosses an event loop. What leaves a slot ends the loop that delivered its event, if that
    // is one of runLoop, which throws it again: the command that waits in it ends. In the main loop it is
    // reported and the loop goes on. Dialogs of Qt that run loops of their own are closed, and what was
    // thrown goes on to the loop around them.
    bool notify(QObject* receiver, QEvent* event) override;
    std::function<void(const QString& problem)> report; // empty: to the standard error stream
    Ref<ILoopExceptions> loopExceptions() const;        // for theOnlyIApp

private:
    bool deliver(QObject* receiver, QEvent* event, int level);
    void giveOn(int level);
    void tell(const std::exception_ptr& thrown) const;

    // Before the children, whose construction already sends events.
    int deliveringLevel = 0; // of the loop whose event is being delivered; the main loop has level 1
    Ref<LoopExceptions> exceptions;
    ConsoleExtension consoleExtension;
    ApplicationServices applicationServices;
};

} // namespace standin
