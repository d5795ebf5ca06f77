// An application object that is all that the module asks for when it starts and ends.
#pragma once

#include "host/app.h"
#include "sdk/rx/od_error.h"

// An application that knows its mode and nothing else.
class AppWithMode : public CKWUnknownImpl<IAppInterior> {
public:
    explicit AppWithMode(int modeToTell) : mode(modeToTell) {
        AddRef();
        theOnlyIApp = this;
    }
    ~AppWithMode() override { theOnlyIApp = nullptr; }
    const wchar_t* rootDirectory() override { return L""; }
    int applicationMode() override {
        if (fails)
            throw OdError(eInvalidInput);
        return mode;
    }
    int mode;
    bool fails = false;
};
