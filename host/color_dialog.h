// The host's colour dialog and colour conversion.
#pragma once

#include "sdk/rx/color.h"

#include <QColor>

class QWidget;

// Runs the modal dialog on `color`; non-zero when the user accepted.
int hostQtSetColorDialogTrueColor(OdCmColor& color, bool, const OdCmColor& previous, OdCm::DialogTabs tabs,
                                  QWidget* parent);

namespace host_qt_ui {
QColor toQColor(const OdCmColor& color);
}
