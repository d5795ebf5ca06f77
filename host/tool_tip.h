// Tool tips that show a name of the user's as it stands.
#pragma once

class QString;

namespace hostqt {

// What to give to setToolTip. A text that Qt would take for rich text is written as rich text that shows
// the same characters; any other comes back as it is.
QString plainToolTip(const QString& text);

} // namespace hostqt
