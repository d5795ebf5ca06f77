// The rows of the page of standard directories: an item for each path, with a counted reference in its
// payload.
#pragma once

#include "host/ref.h"

class IStdDirInfo;
class Preferences;
class QIcon;
class QPrefWidget;
class QString;
class TreeItem;

// Makes the item of a path under its section, with its row.
TreeItem* makePathItem(Preferences& preferences, TreeItem* section, const QIcon& icon,
                       const Ref<IStdDirInfo>& info, int doubleClickEnabled);
void makePathRow(Preferences& preferences, TreeItem* item, int doubleClickEnabled); // over the item's text
void showPath(QPrefWidget& row, const QString& path); // in a row that is there; the tool tip is never markup
IStdDirInfo* payloadOf(const TreeItem* item);         // not counted
void releasePayload(TreeItem* item);
