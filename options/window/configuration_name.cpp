// Reads the system variable `cconfiguration` of the current drawing.
#include "options/window/configuration_name.h"

#include "host/qt_application.h"
#include "host/text.h"
#include "sdk/db/database.h"

QString currentConfigurationName() {
    try {
        const auto database = odrxQuery<OdDbDatabase>(qtCurrentDatabaseObject());
        if (database.isNull())
            return {};
        const OdResBufPtr value = database->getSysVar(OdString(L"cconfiguration"));
        return value.isNull() ? QString() : hostqt::qString(value->getString());
    } catch (...) { // meant: the label then says "Default"
        return {};
    }
}
