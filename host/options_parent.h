// What a host may supply to the command of the Options dialog, which otherwise takes the first of the
// program's top-level widgets for its parent, be it a menu that is about to close. Reached from theOnlyIApp
// like every service.
#pragma once

#include "host/ref.h"

class QWidget;

class IOptionsParent : public IKWUnknown {
public:
    virtual QWidget* optionsParent() = 0; // null for none
};
