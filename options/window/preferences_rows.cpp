// The row widgets of the tree's items, and what the dialog does for each of them.
#include "options/window/preferences.h"

#include "host/typed_reads.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "options/window/option_keys.h"

#include <QTreeWidget>
#include <memory>
#include <utility>

namespace {

const int kStateDisabled = 8; // bit of a node's `State`

} // namespace

// The row is made where the tree is going to keep it: on its way there from another parent it would be
// polished a second time with its own style sheets, which takes longer than all the rest.
QPrefWidget* Preferences::makeRow(int position, TreeItem* item, QWidget* editor, bool cutAtAngleBracket,
                                  int doubleClickEnabled) {
    std::unique_ptr<QWidget> owned(editor);
    auto* const row =
        new QPrefWidget(item, position, editor, cutAtAngleBracket, doubleClickEnabled, tree->viewport());
    owned.release(); // the row has it
    ClickableLabel* const label = row->label();
    connect(label, &QWidget::customContextMenuRequested, this,
            [this, label](const QPoint& clicked) { showContextMenu(label, clicked); });
    connect(label, &ClickableLabel::doubleClicked, this, [this] { modifyCurrent(); });
    atThemeChange(row, [row] { row->applyToolTipStyle(); });
    if (keys && editor)
        keys->watch(editor);
    rowWidgets[item] = row;
    tree->setItemWidget(item, 0, row);
    startDisabled(item, row);
    return row;
}

void Preferences::startDisabled(TreeItem* item, QPrefWidget* row) {
    const TreeItem* const parent = item->parentItem();
    const bool parentIsOff = parent && (!parent->isEnabled() || parent->state == 0);
    int state = 0;
    readValue(optionItems.value(item), "State", &state);
    if (parentIsOff || (state & kStateDisabled)) {
        item->setEnabledFlag(false);
        row->setEnabled(false);
    }
}

void Preferences::atThemeChange(QObject* context, std::function<void()> act) {
    connect(this, &Preferences::themeChanged, context, std::move(act));
}
