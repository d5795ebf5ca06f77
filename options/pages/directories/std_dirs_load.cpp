// Reading the standard directories into the option tree.
#include "host/app.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "options/pages/directories/path_rows.h"
#include "options/pages/directories/std_dir_item.h"
#include "options/pages/directories/std_dir_list.h"
#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/rows/option_dialog.h"
#include "options/pages/rows/page_rows.h"
#include "options/pages/rows/pref_widget.h"

#include <QIcon>
#include <QTreeWidget>

namespace {

const char* const descriptionsSection = "StdDirsDescriptions";

void readSections(OptionDialog& options, IParam* descriptions) {
    options.stdDirs.clear();
    for (const std::string& key : childNames(descriptions)) {
        const Ref<IParam> section = openChild(descriptions, key.c_str());
        if (!section)
            continue;
        CStdDirItem item;
        item.key = key.c_str();
        CXStringW name;
        readValue(section.get(), "Name", &name);
        item.name = hostqt::cxStringW(translated(name));
        item.Load(theOnlyIApp);
        options.stdDirs.push_back(std::move(item));
    }
}

TreeItem* makeSectionItem(OptionDialog& options, QTreeWidgetItem* parent, const QIcon& icon,
                          std::size_t index) {
    auto* item = new TreeItem(parent);
    item->setText(0, hostqt::qString(options.stdDirs[index].name));
    item->setIcon(0, icon);
    item->nodeType = kNodeDirSection;
    item->buttonMask = kMaskAdd;
    item->numberValue = static_cast<double>(index);
    options.makeRow(2, item, nullptr, true, 0);
    return item;
}

QString descriptionOf(IParam* host, const CXString& key) {
    CXString path(descriptionsSection);
    path.AddDirDelim();
    path += key;
    CXStringW text;
    readValue(openChild(host, path).get(), "Description", &text);
    return hostqt::qString(text);
}

void makePathItems(OptionDialog& options, TreeItem* section, const QIcon& icon, const Ref<StdDirList>& list) {
    for (const Ref<IStdDirInfo>& info : elementsOf(list)) {
        TreeItem* item = makePathItem(options, section, icon, info, 1);
        if (!info->GetEditable()) {
            options.rowWidgets.value(item)->setEnabled(false);
            item->setEnabledFlag(false);
        }
    }
}

} // namespace

void loadStdDirs(OptionDialog& options, QTreeWidgetItem* parent) {
    const Ref<IParam> host = appService<IParam>();
    const Ref<IParam> descriptions = openChild(host.get(), descriptionsSection);
    if (!appService<IStdDirs>() || !descriptions)
        return;
    readSections(options, descriptions.get());
    const QIcon icon = iconOf(parent);
    for (std::size_t index = 0; index < options.stdDirs.size(); ++index) {
        TreeItem* section = makeSectionItem(options, parent, icon, index);
        const CStdDirItem& item = options.stdDirs[index];
        // Meant: only a section without a list, not one with an empty list, goes without its description.
        if (!item.list)
            continue;
        section->description = descriptionOf(host.get(), item.key);
        makePathItems(options, section, icon, item.list);
    }
}
