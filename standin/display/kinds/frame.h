// Frames with a name, for what the drawing only refers to, or keeps in a form of another program.
#pragma once

#include "sdk/rx/od_string.h"
#include "standin/display/pencil.h"

namespace standin {

// Along the corners, in world coordinates, and back to the first; the name stands in its middle, as large as
// there is room.
void drawFrame(const std::vector<OdGePoint3d>& corners, const OdString& name, const Pencil& pencil);
// All points of the code: those in the class's own part, or where that has none those of the whole record.
std::vector<OdGePoint3d> cornersIn(const DxfTagList& tags, std::string_view marker, int code);
// The file's part of a path, whichever slashes it has.
OdString fileOf(const OdString& path);

} // namespace standin
