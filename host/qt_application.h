// The interfaces that the Qt application object offers by qt_metacast: "oda.IqApplication" and, through its
// extension operation, "oda.IqConsole".
#pragma once

#include "sdk/rx/rx_object.h"

#include <QObject>

class OdDbDatabase;

// What the application's services hand out; only the operations in use.
class IqServices {
public:
    virtual ~IqServices() = default;
    virtual OdRxObjectPtr newContext(int, int) = 0; // lives as long as the read that it is made for
    // Loads a drawing file; throws OdError.
    virtual OdSmartPtr<OdDbDatabase> readFile(const OdString& path, int, int, int shareMode,
                                              const OdString& password) = 0;
};

class IqApplication {
public:
    virtual ~IqApplication() = default;
    virtual QObject* extension(const QString& id) = 0; // null for an unknown id
    virtual IqServices* services() = 0;
};

class IqConsole {
public:
    virtual ~IqConsole() = default;
    virtual OdRxObject* currentDatabase() = 0; // borrowed; null without a document
};

Q_DECLARE_INTERFACE(IqApplication, "oda.IqApplication")
Q_DECLARE_INTERFACE(IqConsole, "oda.IqConsole")

// The way to both, null where the application does not offer them.
IqApplication* qtApplicationInterface();
IqConsole* qtConsoleInterface();
// The context for reading a system variable, and the current database's object; null where there is none.
OdRxObjectPtr newReadContext();
OdRxObject* qtCurrentDatabaseObject();
