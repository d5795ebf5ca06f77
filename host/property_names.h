// What a host may demand of the names of custom properties, beyond what the dialog of the drawing properties
// checks by itself. Reached from theOnlyIApp like every service.
#pragma once

#include "host/ref.h"

class IPropertyNames : public IKWUnknown {
public:
    // False for a text that the dialog is to refuse like one of nothing but blanks. It comes as typed; the
    // dialog takes the blanks of every kind off its ends afterwards.
    virtual bool isName(const wchar_t* text) = 0;
};
