// The rows of the page of standard directories: an item for each path, whose payload is the element of the
// list.
#pragma once

#include "host/ref.h"

class IStdDirInfo;
class OptionDialog;
class QIcon;
class QPrefWidget;
class QString;
class TreeItem;

// Makes the item of a path under its section, with its row.
TreeItem* makePathItem(OptionDialog& options, TreeItem* section, const QIcon& icon,
                       const Ref<IStdDirInfo>& info, int doubleClickEnabled);
void makePathRow(OptionDialog& options, TreeItem* item, int doubleClickEnabled); // over the item's text
void showPath(QPrefWidget& row, const QString& path); // in a row that is there; the tool tip is never markup
IStdDirInfo* payloadOf(const TreeItem* item);         // the dialog's records hold a reference for each row
