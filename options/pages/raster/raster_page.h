// The page of raster formats: a row with a check box for each format of the host's list.
#pragma once

class IKWUnknown;
class Preferences;
class TreeItem;

void loadRasterFormats(Preferences& preferences, TreeItem* rasterRootItem);
void storeRasterFormats(Preferences& preferences, IKWUnknown* app); // `app` may be null

// The operations on a format row (node type 6).
void addRasterFormat(Preferences& preferences, TreeItem* item); // copies the format of the row
void modifyRasterFormat(Preferences& preferences, TreeItem* item);
void deleteRasterFormat(Preferences& preferences, TreeItem* item); // asks first; reaches the store on Apply
