// System variables that belong to the application and not to a drawing. The application hangs its own in
// here.
#pragma once

#include "sdk/rx/res_buf.h"

class OdDbApplicationVariables {
public:
    virtual ~OdDbApplicationVariables() = default;
    virtual OdResBufPtr getVariable(const OdString& name) = 0; // null when it has none
    // The value of a variable of drawings, for one that doesn't hold it; null when there is none.
    virtual OdResBufPtr drawingDefault(const OdString& /*name*/) { return {}; }
    virtual bool setVariable(const OdString& name, const OdResBuf* value) = 0; // false when it has none
};

// Not owned; null takes it out.
void odDbSetApplicationVariables(OdDbApplicationVariables* variables);
OdDbApplicationVariables* odDbApplicationVariables();
