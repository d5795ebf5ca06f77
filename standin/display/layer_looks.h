// What the layers of a drawing say about how their objects look.
#pragma once

#include "sdk/db/database.h"
#include "sdk/db/layer_table.h"
#include "standin/display/shape.h"

#include <unordered_map>

namespace standin {

struct LayerLook {
    Ink ink = kForeground;
    bool off = false;
    bool frozen = false;
    Dashes dashes;
};

// Of the palette; 7, which is white or black, is the foreground.
Ink inkOfIndex(int index);

class LayerLooks {
public:
    explicit LayerLooks(const OdDbDatabase& drawing);
    const LayerLook& of(const OdString& layer) const; // a missing layer is shown in the foreground
    const Linetypes& linetypes() const { return types; }

private:
    Linetypes types;
    std::unordered_map<std::wstring, LayerLook> looks; // by name in small letters
};

} // namespace standin
