// The text styles of a drawing, as far as they change how a text looks.
#pragma once

#include "sdk/db/database.h"

#include <unordered_map>

namespace standin {

struct TextStyle {
    double widthFactor = 1;
    double oblique = 0; // radians
    bool backwards = false;
    bool upsideDown = false;
    bool vertical = false;
};

class TextStyles {
public:
    explicit TextStyles(const OdDbDatabase& drawing);
    const TextStyle& of(const OdString& name) const; // a missing one is plain

private:
    std::unordered_map<std::wstring, TextStyle> styles; // by name in small letters
};

} // namespace standin
