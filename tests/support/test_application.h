// The application object of the tests. It offers the two interfaces that the host's application offers, and
// counts the contexts that it gives out.
#pragma once

#include "host/qt_application.h"
#include "sdk/db/database.h"

#include <QApplication>
#include <functional>
#include <vector>

class TestServices : public IqServices {
public:
    OdRxObjectPtr newContext(int, int) override;
    OdSmartPtr<OdDbDatabase> readFile(const OdString& path, int, int, int shareMode,
                                      const OdString& password) override;
    int contextsMade = 0;
    // Stands in for reading drawings; empty: no path can be opened.
    std::function<OdDbDatabasePtr(const OdString& path)> reader;
    std::vector<int> readNumbers; // the three numbers of the last readFile, in order
    std::vector<int> contextNumbers;
};

class TestConsole : public QObject, public IqConsole {
    Q_OBJECT
    Q_INTERFACES(IqConsole)
public:
    OdRxObject* currentDatabase() override { return database; }
    OdRxObject* database = nullptr;
};

class TestApplication : public QApplication, public IqApplication {
    Q_OBJECT
    Q_INTERFACES(IqApplication)
public:
    using QApplication::QApplication;
    QObject* extension(const QString& id) override;
    IqServices* services() override { return &testServices; }

    static TestApplication* self();
    TestServices testServices;
    TestConsole console;
    bool offersConsole = true;
};
