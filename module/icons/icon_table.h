// The one table from icon number to resource base name.
#pragma once

#include <QMap>
#include <QString>

const QMap<int, QString>& iconTable();
// Where toolIcon looks for a number in a theme; a number without an icon has an empty base name.
QString toolIconPath(int number, int theme);
