// What a host may supply so that the attach command asks on the console instead of with its dialogs. Reached
// from theOnlyIApp like every service; without it the command shows its dialogs.
#pragma once

#include "host/ref.h"
#include "sdk/rx/od_string.h"

#include <vector>

class IAttachFiles : public IKWUnknown {
public:
    // False: the command is to show its dialogs. True: the host has asked, and the command attaches `files`,
    // absolute paths, none when the user gave up, as its dialog would with the settings of the last time: it
    // goes on with the prompts for what is specified on screen.
    virtual bool askForFiles(std::vector<OdString>& files) = 0;
};
