// How much a picture may cost: by the points that have to be looked at and the pixels that lines and areas
// have in it, whatever a file asks for.
#pragma once

#include "standin/display/picture_order.h"

namespace standin {

// Where a picture ends that would cost too much. Items lie one behind the other in the order of the drawing.
struct PictureEnd {
    const Item* item = nullptr; // null: all is painted
    std::size_t shapes = 0;     // of this item that are painted; each item behind it is one dot

    bool isBefore(const Item& other) const { return item && std::less<const Item*>()(item, &other); }
};

// No less than what the item costs; quickly found.
double mostCostOf(const Item& item, const PictureOrder& order);
double costOf(const Shape& shape, const PictureOrder& order);
// Of these items, in the order of the drawing.
PictureEnd endOf(const std::vector<const Item*>& items, const PictureOrder& order);

} // namespace standin
