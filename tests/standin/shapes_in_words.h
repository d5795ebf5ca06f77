// What is shown of a drawing in words, a line for each item and each of its shapes.
#pragma once

#include "standin/display/display_list.h"

#include <string>

namespace shown {

// Numbers have up to four decimals.
std::string inWords(const standin::Shape& shape);
std::string inWords(const standin::Item& item);

} // namespace shown
