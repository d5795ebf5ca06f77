// The text form of a preview picture in a drawing file.
#pragma once

#include <string>
#include <string_view>

// The section with its opening; `open` leaves the closing tag to the caller, who has it already.
std::string odDbThumbnailSectionText(std::string_view picture, bool carriageReturns, bool open);
