// The small picture of a drawing that is saved with it.
#pragma once

#include "sdk/db/thumbnail.h"
#include "standin/display/display_list.h"

#include <QColor>

namespace standin {

// All of the drawing, its longer side 200 pixels long, in 256 colours. Without a bitmap when nothing is
// shown.
OdThumbnailImage previewPicture(const DisplayList& list, const QColor& background);

} // namespace standin
