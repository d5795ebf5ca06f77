// The application object of the stand-in: QApplication with the two interfaces that modules ask it for, and
// with an end for exceptions that nobody caught.
#pragma once

#include "host/qt_application.h"

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

    // The main event loop. An exception that reaches it ends the event that it came from and is reported;
    // through the loops of modal dialogs and prompts it passes on to whoever runs them.
    int run();
    std::function<void(const QString& problem)> report; // empty: to the standard error stream
    // Shows no tool tips while the variable TOOLTIPS is off.
    bool notify(QObject* receiver, QEvent* event) override;

private:
    // Before the children, whose construction already sends events.
    bool running = false;
    int depth = 0; // of notify
    ConsoleExtension consoleExtension;
    ApplicationServices applicationServices;
};

} // namespace standin
