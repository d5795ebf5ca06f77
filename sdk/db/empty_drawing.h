// The text of a new drawing.
#pragma once

#include <string>

std::string odDbEmptyDrawingText();
