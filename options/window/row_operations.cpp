// Add, Modify, Delete and the moves of the current row, handed to its kind, and the context menu that offers
// them.
#include "options/window/preferences.h"

#include "options/kinds/row_kind.h"
#include "options/tree/mask_rules.h"

#include <QMenu>
#include <QTreeWidget>

TreeItem* Preferences::currentItem() const { return static_cast<TreeItem*>(tree->currentItem()); }

void Preferences::addToCurrent() {
    if (TreeItem* const item = currentItem())
        rowKind(item->nodeType).add(*this, item);
}

void Preferences::modifyCurrent() {
    if (TreeItem* const item = currentItem())
        rowKind(item->nodeType).modify(*this, item);
}

void Preferences::deleteCurrent() {
    if (TreeItem* const item = currentItem())
        rowKind(item->nodeType).remove(*this, item);
}

void Preferences::moveCurrent(int step) {
    TreeItem* const item = currentItem();
    if (!item || !item->parentItem())
        return;
    const int target = item->parentItem()->indexOfChild(item) + step;
    if (target >= 0 && target < item->parentItem()->childCount())
        rowKind(item->nodeType).move(*this, item, step);
}

// The menu belongs to the row under the mouse and acts on the current item: the press that asked for it has
// made the two the same, unless the row is disabled.
void Preferences::showContextMenu(QWidget* label, const QPoint& position) {
    const TreeItem* const item = currentItem();
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
