// The choice of reference files.
#pragma once

#include <QStringList>

class QWidget;

// Always starts at the root of the file system. Empty when the user cancels.
QStringList selectXRefFiles(QWidget* parent, bool multiple);
