// Moving a row one place up or down among its brothers. The row widget goes with `takeChild`, so each move
// makes it anew.
#include "options/window/preferences.h"

#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/rows/page_rows.h"
#include "options/pages/rows/pref_widget.h"

#include <QAbstractButton>
#include <QTreeWidget>

void Preferences::moveCurrent(int step) {
    auto* const item = static_cast<TreeItem*>(tree->currentItem());
    if (!item || !item->parentItem())
        return;
    const int target = item->parentItem()->indexOfChild(item) + step;
    if (target < 0 || target >= item->parentItem()->childCount())
        return;
    switch (item->nodeType) {
    case kNodePaper:
        movePaperRow(item, step);
        break;
    case kNodePath:
        movePath(*this, item, step);
        break;
    default:
        moveRow(item, step, nullptr); // no data of a page follows, and an editor isn't kept: meant
    }
}

// The editor lives on in the new row: it leaves the old one before that goes.
void Preferences::movePaperRow(TreeItem* item, int step) {
    QPrefWidget* const row = rowWidgets.value(item);
    auto* const editor = row ? row->findChild<QAbstractButton*>() : nullptr;
    if (editor)
        editor->setParent(this);
    movePaperFormat(*this, item, step);
    moveRow(item, step, editor);
}

void Preferences::moveRow(TreeItem* item, int step, QWidget* editor) {
    const QString text = plainLabelText(*this, item);
    TreeItem* const parent = item->parentItem();
    const int index = parent->indexOfChild(item);
    forgetWidgets(item);
    parent->takeChild(index);
    parent->insertChild(index + step, item);
    item->setText(0, text);
    makeRow(0, item, editor, false, 1);
    tree->setCurrentItem(item);
    tree->setFocus(Qt::OtherFocusReason);
}
