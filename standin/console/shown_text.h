// Texts of drawings and files as a console or a terminal may show them.
#pragma once

#include <QString>

namespace standin {

// Every control character but line feeds and tabs stands as \U+XXXX, so that a name can't move the cursor of
// a terminal, colour it or rename its window.
QString withoutControls(const QString& text);

} // namespace standin
