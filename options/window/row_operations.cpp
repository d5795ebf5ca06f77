// Add, Modify and Delete on the current row, handed to the page that owns it, and the context menu that
// offers them.
#include "options/window/preferences.h"

#include "options/kinds/editor_modify.h"
#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/raster/raster_page.h"
#include "options/tree/mask_rules.h"

#include <QMenu>
#include <QTreeWidget>

void Preferences::addToCurrent() {
    auto* const item = static_cast<TreeItem*>(tree->currentItem());
    if (!item)
        return;
    switch (item->nodeType) {
    case kNodePaper:
    case kNodePaperRoot:
        addPaperFormat(*this, item);
        break;
    case kNodeRasterFormat:
        addRasterFormat(*this, item);
        break;
    case kNodePath:
    case kNodeDirSection:
        addPath(*this, item);
        break;
    default:
        break;
    }
}

void Preferences::modifyCurrent() {
    auto* const item = static_cast<TreeItem*>(tree->currentItem());
    if (!item)
        return;
    switch (item->nodeType) {
    case kNodePaper:
        modifyPaperFormat(*this, item);
        break;
    case kNodeRasterFormat:
        modifyRasterFormat(*this, item);
        break;
    case kNodePath:
        modifyPath(*this, item);
        break;
    default:
        modifyEditorRow(*this, item);
    }
}

void Preferences::deleteCurrent() {
    auto* const item = static_cast<TreeItem*>(tree->currentItem());
    if (!item)
        return;
    switch (item->nodeType) {
    case kNodePaper:
        deletePaperFormat(*this, item);
        break;
    case kNodeRasterFormat:
        deleteRasterFormat(*this, item);
        break;
    case kNodePath:
        deletePath(*this, item);
        break;
    default:
        break;
    }
}

// The menu belongs to the row under the mouse and acts on the current item: the press that asked for it has
// made the two the same, unless the row is disabled.
void Preferences::showContextMenu(QWidget* label, const QPoint& position) {
    const auto* const item = static_cast<TreeItem*>(tree->currentItem());
    if (!item)
        return;
    const std::uint32_t mask = contextMenuMask(item);
    QMenu menu(tr("Context Menu"), this);
    menu.setObjectName(QStringLiteral("contextMenu"));
    const auto addAction = [&menu, mask](const QString& text, ButtonMask bit) {
        QAction* const action = menu.addAction(text);
        action->setEnabled(mask & bit);
        return action;
    };
    const QAction* const add = addAction(tr("Add"), kMaskAdd);
    const QAction* const modify = addAction(tr("Modify"), kMaskModify);
    const QAction* const remove = addAction(tr("Delete"), kMaskDelete);

    const QAction* const chosen = menu.exec(label->mapToGlobal(position));
    if (!chosen)
        return;
    if (chosen == add)
        addToCurrent();
    else if (chosen == modify)
        modifyCurrent();
    else if (chosen == remove)
        deleteCurrent();
}
