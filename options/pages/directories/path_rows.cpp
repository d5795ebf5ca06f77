// Makes the rows of paths.
#include "options/pages/directories/path_rows.h"

#include "host/std_dirs.h"
#include "host/text.h"
#include "host/tool_tip.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/option_dialog.h"
#include "options/pages/rows/pref_widget.h"

#include <QIcon>

TreeItem* makePathItem(OptionDialog& options, TreeItem* section, const QIcon& icon,
                       const Ref<IStdDirInfo>& info, int doubleClickEnabled) {
    auto* item = new TreeItem(section);
    item->setText(0, hostqt::qString(info->GetPath()));
    item->setIcon(0, icon);
    item->nodeType = kNodePath;
    item->buttonMask = kMaskDelete | kMaskModify | kMaskAdd | kMaskUp | kMaskDown;
    item->numberValue = section->numberValue;
    item->description = section->description;
    item->payload = options.pageRecords.keep(info);
    makePathRow(options, item, doubleClickEnabled);
    return item;
}

void makePathRow(OptionDialog& options, TreeItem* item, int doubleClickEnabled) {
    QPrefWidget* row = options.makeRow(2, item, nullptr, true, doubleClickEnabled);
    showPath(*row, row->label()->text());
}

void showPath(QPrefWidget& row, const QString& path) {
    row.label()->setText(path);
    row.label()->setToolTip(hostqt::plainToolTip(path));
}

IStdDirInfo* payloadOf(const TreeItem* item) { return static_cast<IStdDirInfo*>(item->payload); }
