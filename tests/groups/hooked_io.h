// A scripted console at which something else happens while it asks.
#pragma once

#include "tests/support/scripted_io.h"

#include <functional>

class HookedIO : public ScriptedIO {
public:
    // Called with the text of each prompt before it is answered.
    std::function<void(const OdString& prompt)> onPrompt;
    OdString leftInResult; // what stands in the result after a reply that typed nothing
    int getInput(const wchar_t* prompt, const wchar_t* keywords, int flags, OdString* result,
                 int reserved) override {
        if (onPrompt)
            onPrompt(prompt);
        const int reply = ScriptedIO::getInput(prompt, keywords, flags, result, reserved);
        if (reply != kInputTyped && result && !leftInResult.isEmpty())
            *result = leftInResult;
        return reply;
    }
};
