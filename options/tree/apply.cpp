// Apply: every row of the tree on its way from its item into its store.
#include "options/tree/apply.h"

#include "host/app.h"
#include "host/param.h"
#include "host/typed_reads.h"
#include "options/kinds/row_kind.h"
#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/raster/raster_page.h"
#include "options/pages/rows/option_dialog.h"
#include "options/tree/dialog_state.h"

#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace {

QList<QByteArray> expandedNames(QTreeWidget* tree) {
    QList<QByteArray> names;
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        if ((*it)->isExpanded())
            names += static_cast<TreeItem*>(*it)->nodeName;
    return names;
}

// The section that keeps what the dialog itself remembers.
Ref<IParam> dialogSection() { return openChild(appService<IProfile>().get(), kDialogSection, 1); }

void storePages(OptionDialog& options) {
    storeRasterFormats(options, theOnlyIApp);
    storeStdDirs(options);
    storePaperFormats(theOnlyIApp, options.paperFormats);
}

void applyWithChildren(OptionDialog& options, TreeItem* item) {
    applyItem(options, item);
    for (int i = 0; i < item->childCount(); ++i)
        applyWithChildren(options, item->childItem(i));
}

} // namespace

void applyOptions(OptionDialog& options) {
    storePages(options);
    if (const Ref<IParam> section = dialogSection())
        section->removeEntry(kExpandedSections);
    for (int i = 0; i < options.tree->topLevelItemCount(); ++i)
        applyWithChildren(options, static_cast<TreeItem*>(options.tree->topLevelItem(i)));
    saveExpandedSections(options.tree);
}

void applyItem(OptionDialog& options, TreeItem* item) {
    const RowKind& kind = rowKind(item->nodeType);
    if (item->isEnabled() || kind.isWrittenDisabled())
        kind.write(options, item);
}

void saveExpandedSections(QTreeWidget* tree) {
    const QList<QByteArray> names = expandedNames(tree);
    const Ref<IParam> section = dialogSection();
    if (!section)
        return;
    section->removeEntry(kExpandedSections);
    const Ref<IParam> saved = openChild(section.get(), kExpandedSections, 1);
    for (const QByteArray& name : names)
        writeValue(saved.get(), name, 1);
}
