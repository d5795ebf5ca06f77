// The table of the rules.
#include "options/tree/id_rules.h"

#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/raster/raster_page.h"
#include "options/pages/rows/option_dialog.h"

namespace {

void fillPapers(OptionDialog& options, TreeItem* item) {
    options.paperRootItem = item;
    item->nodeType = kNodePaperRoot;
    loadPaperFormats(options, item);
}

void fillStdDirs(OptionDialog& options, TreeItem* item) { loadStdDirs(options, item); }

void noteCursorColor(OptionDialog& options, TreeItem* item) {
    item->optionId = kIdCursorColor;
    options.cursorColorItem = item;
    options.cursorColorKey = "Color3D";
    options.cursorSection = "Cursor";
}

struct IdRule {
    OptionId id;
    void (*run)(OptionDialog& options, TreeItem* item);
};

constexpr IdRule kRules[] = {
    {kIdPapers, fillPapers},
    {kIdStdDirs, fillStdDirs},
    {kIdRasterFormats, loadRasterFormats},
    {kIdCursorColor, noteCursorColor},
};

} // namespace

void runIdRule(OptionDialog& options, int id, TreeItem* item) {
    for (const IdRule& rule : kRules)
        if (rule.id == id)
            rule.run(options, item);
}
