// The application object of the tests.
#include "tests/support/test_application.h"

OdRxObjectPtr TestServices::newContext(int first, int second) {
    ++contextsMade;
    contextNumbers = {first, second};
    return OdRxObjectPtr(new OdRxObject);
}

OdSmartPtr<OdDbDatabase> TestServices::readFile(const OdString& path, int first, int second, int shareMode,
                                                const OdString&) {
    readNumbers = {first, second, shareMode};
    if (!reader)
        throw OdError(eCantOpenFile);
    return reader(path);
}

QObject* TestApplication::extension(const QString& id) {
    return offersConsole && id == QStringLiteral("oda.IqConsole") ? &console : nullptr;
}

TestApplication* TestApplication::self() {
    return static_cast<TestApplication*>(QCoreApplication::instance());
}

#include "moc_test_application.cpp"
