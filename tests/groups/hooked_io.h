// A scripted console at which something else happens while it asks.
#pragma once

#include "tests/support/scripted_io.h"

#include <functional>

class HookedIO : public ScriptedIO {
public:
    // Called with the text of each prompt before it is answered.
    std::function<void(const OdString& prompt)> onPrompt;
    int getInput(const wchar_t* prompt, const wchar_t* keywords, int flags, OdString* result,
                 int reserved) override {
        if (onPrompt)
            onPrompt(prompt);
        return ScriptedIO::getInput(prompt, keywords, flags, result, reserved);
    }
};
