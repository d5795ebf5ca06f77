// What the tables and variables of a drawing say about how its objects look.
#pragma once

#include "sdk/db/database.h"
#include "sdk/db/layer_table.h"
#include "standin/display/drawing_variables.h"
#include "standin/display/pen_look.h"
#include "standin/display/shape.h"
#include "standin/display/text_styles.h"

#include <unordered_map>

namespace standin {

struct LayerLook {
    Ink ink = kForeground;
    bool off = false;
    bool frozen = false;
    Dashes dashes;
    int weight = kDefaultWeight; // in hundredths of a millimetre
    std::uint8_t opacity = 255;

    friend bool operator==(const LayerLook& a, const LayerLook& b) {
        return a.ink == b.ink && a.off == b.off && a.frozen == b.frozen && a.dashes == b.dashes &&
               a.weight == b.weight && a.opacity == b.opacity;
    }
};

// Of the palette; 7, which is white or black, is the foreground.
Ink inkOfIndex(int index);

class LayerLooks {
public:
    explicit LayerLooks(const OdDbDatabase& drawing);
    const LayerLook& of(const OdString& layer) const; // a missing layer is shown in the foreground
    const Linetypes& linetypes() const { return types; }
    const TextStyles& textStyles() const { return styles; }
    const DrawingVariables& variables() const { return header; }

private:
    DrawingVariables header;
    Linetypes types;
    TextStyles styles;
    std::unordered_map<std::wstring, LayerLook> looks; // by name in small letters
};

} // namespace standin
