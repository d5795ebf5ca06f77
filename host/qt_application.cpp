// Casts by name: the two interfaces may come from a library with type information of its own.
#include "host/qt_application.h"

#include <QCoreApplication>

IqApplication* qtApplicationInterface() {
    QCoreApplication* application = QCoreApplication::instance();
    return application ? static_cast<IqApplication*>(application->qt_metacast("oda.IqApplication")) : nullptr;
}

IqConsole* qtConsoleInterface() {
    IqApplication* application = qtApplicationInterface();
    QObject* console = application ? application->extension(QStringLiteral("oda.IqConsole")) : nullptr;
    return console ? static_cast<IqConsole*>(console->qt_metacast("oda.IqConsole")) : nullptr;
}

OdRxObjectPtr newReadContext() {
    IqApplication* application = qtApplicationInterface();
    IqServices* services = application ? application->services() : nullptr;
    return services ? services->newContext(0, 0) : OdRxObjectPtr();
}

OdRxObject* qtCurrentDatabaseObject() {
    IqConsole* console = qtConsoleInterface();
    return console ? console->currentDatabase() : nullptr;
}
