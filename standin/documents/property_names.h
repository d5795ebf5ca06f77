// Names of custom properties that leave something when the blanks at their ends are taken off.
#pragma once

#include "host/property_names.h"
#include "host/text.h"

namespace standin {

class PropertyNames : public CKWUnknownImpl<IPropertyNames> {
public:
    bool isName(const wchar_t* text) override { return !hostqt::qString(text).trimmed().isEmpty(); }
};

} // namespace standin
