// Turns texts that are laid out into shapes.
#pragma once

#include "standin/display/pencil.h"
#include "standin/display/text_layout.h"

namespace standin {

// `matrix` leads from the plane of the text to the drawing. Letters with a colour of their own have that.
void drawLaidText(const LaidText& text, const OdGeMatrix3d& matrix, const Pencil& pencil);

} // namespace standin
