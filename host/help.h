// The host's help and its event interface.
#pragma once

#include "host/ref.h"

class IHelpService : public IKWUnknown {
public:
    virtual void showTopic(const char* topicId) = 0;
};
IHelpService* Get_IHelpService();   // one reference for the caller, or null
void showHelp(const char* topicId); // nothing without a help service

class IEvents : public IKWUnknown {
public:
    // Puts a translated text in front of the user. The answer 2 is Cancel.
    virtual int notify(int kind, const wchar_t* text, int, int buttons) = 0;
};
IEvents* Get_IEvents(); // one reference for the caller, or null
