// The page of raster formats: a row with a check box for each format of the host's list.
#pragma once

class IKWUnknown;
class OptionDialog;
class TreeItem;

void loadRasterFormats(OptionDialog& options, TreeItem* rasterRootItem);
void storeRasterFormats(OptionDialog& options, IKWUnknown* app); // `app` may be null

// The operations on a format row (node type 6).
void addRasterFormat(OptionDialog& options, TreeItem* item); // copies the format of the row
void modifyRasterFormat(OptionDialog& options, TreeItem* item);
void deleteRasterFormat(OptionDialog& options, TreeItem* item); // asks first; reaches the store on Apply
