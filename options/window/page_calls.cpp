// Hands each operation to its page.
#include "options/window/page_calls.h"

#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/raster/raster_page.h"
#include "options/window/preferences.h"

namespace {

// Without it each operation would call itself.
OptionDialog& pageView(Preferences& preferences) { return preferences; }

} // namespace

void loadStdDirs(Preferences& preferences, QTreeWidgetItem* parent) {
    loadStdDirs(pageView(preferences), parent);
}

void addPath(Preferences& preferences, TreeItem* section) { addPath(pageView(preferences), section); }

void modifyPath(Preferences& preferences, TreeItem* path) { modifyPath(pageView(preferences), path); }

void deletePath(Preferences& preferences, TreeItem* path) { deletePath(pageView(preferences), path); }

void movePath(Preferences& preferences, TreeItem* path, int step) {
    movePath(pageView(preferences), path, step);
}

bool validatePath(Preferences& preferences, const QString& path, const QString& sectionTitle,
                  int sectionIndex) {
    return validatePath(pageView(preferences), path, sectionTitle, sectionIndex);
}

void storeStdDirs(Preferences& preferences) { storeStdDirs(pageView(preferences)); }

void loadRasterFormats(Preferences& preferences, TreeItem* rasterRootItem) {
    loadRasterFormats(pageView(preferences), rasterRootItem);
}

void storeRasterFormats(Preferences& preferences, IKWUnknown* app) {
    storeRasterFormats(pageView(preferences), app);
}

void loadPaperFormats(Preferences& preferences, TreeItem* paperRootItem) {
    loadPaperFormats(pageView(preferences), paperRootItem);
}

void reloadPaperRows(Preferences& preferences) { reloadPaperRows(pageView(preferences)); }
