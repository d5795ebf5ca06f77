// The pages' operations under the names and with the arguments that they are known by: on the dialog itself.
#pragma once

class IKWUnknown;
class Preferences;
class QString;
class QTreeWidgetItem;
class TreeItem;

void loadStdDirs(Preferences& preferences, QTreeWidgetItem* parent);
void addPath(Preferences& preferences, TreeItem* section);
void modifyPath(Preferences& preferences, TreeItem* path);
void deletePath(Preferences& preferences, TreeItem* path);
void movePath(Preferences& preferences, TreeItem* path, int step);
bool validatePath(Preferences& preferences, const QString& path, const QString& sectionTitle,
                  int sectionIndex);
void storeStdDirs(Preferences& preferences);
void loadRasterFormats(Preferences& preferences, TreeItem* rasterRootItem);
void storeRasterFormats(Preferences& preferences, IKWUnknown* app);
void loadPaperFormats(Preferences& preferences, TreeItem* paperRootItem);
void reloadPaperRows(Preferences& preferences);
