// The icons of the module by number. The numbers are data: the `Image` key of the option tree holds them.
#pragma once

#include <QIcon>

// The icon of a tree row; a number without an icon gives that of row 33.
QIcon treeIcon(int number);
// The icon of a tool button, with a greyed form; a number without an icon gives an icon without a picture.
QIcon toolIcon(int number);
