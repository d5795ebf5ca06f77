// Drawing texts whose lines end with a carriage return alone are read as if these were line feeds, at the
// same places, and written back with what they had.
#pragma once

#include <string>
#include <string_view>

// Whether the first line ends so.
bool dxfHasLoneReturns(std::string_view text);
// Every carriage return that has no line feed behind it becomes one.
std::string dxfWithLineFeeds(std::string text);
// The way back for lines of such a text that were written anew.
void dxfPutLoneReturns(std::string& text);
