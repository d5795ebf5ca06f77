// What the dialog hands to its tree: the walk of the option data, the builders of the rows, and Apply.
#include "options/window/preferences.h"

#include "module/icons/icons.h"
#include "options/kinds/cursor_flag.h"
#include "options/kinds/icon_numbers.h"
#include "options/kinds/radio_button.h"
#include "options/kinds/row_kind.h"
#include "options/tree/apply.h"
#include "options/tree/option_walk.h"
#include "options/window/profile_choice.h"

#include <QTreeWidget>

void Preferences::rebuildTree(bool fromConfiguration) {
    if (fromConfiguration) {
        clearTree();
        TreeItem* const root = makeRoot();
        walkConfiguration(*this, root);
        groupRadioButtons(*this);
        tree->setCurrentItem(root);
    }
    fillProfiles();
}

// The root's number stays 0 although its picture is row 33 of the icon table.
TreeItem* Preferences::makeRoot() {
    auto* const root = new TreeItem(tree, {tr("Application preferences")});
    root->setIcon(0, treeIcon(kIconRoot));
    root->setExpanded(true);
    makeRow(2, root, nullptr, false, 1);
    return root;
}

void Preferences::buildNode(IParam* node, const char* nodeName, TreeItem* parentItem) {
    ::buildNode(*this, node, nodeName, parentItem);
}

void Preferences::buildCheck(TreeItem* item, IParam* node) {
    rowKind(kNodeCheck).build(*this, item, node, kIdNone);
}

void Preferences::buildRadio(TreeItem* item, IParam* node) {
    rowKind(kNodeRadio).build(*this, item, node, kIdNone);
}

void Preferences::buildColor(TreeItem* item, IParam* node, int nodeType) {
    rowKind(nodeType).build(*this, item, node, kIdNone);
}

void Preferences::buildEditInt(TreeItem* item, IParam* node) {
    rowKind(kNodeEditInt).build(*this, item, node, kIdNone);
}

void Preferences::buildEditReal(TreeItem* item, IParam* node) {
    rowKind(kNodeEditReal).build(*this, item, node, kIdNone);
}

void Preferences::buildFileEdit(TreeItem* item, IParam* node, int id) {
    rowKind(kNodeEditFile).build(*this, item, node, id);
}

void Preferences::buildEdit(TreeItem* item, IParam* node) {
    rowKind(kNodeEdit).build(*this, item, node, kIdNone);
}

void Preferences::buildDirEdit(TreeItem* item, IParam* node) {
    rowKind(kNodeEditDir).build(*this, item, node, kIdNone);
}

void Preferences::buildCombo(TreeItem* item, IParam* node, int id) {
    rowKind(kNodeCombo).build(*this, item, node, id);
}

void Preferences::applyChanges() {
    applyOptions(*this);
    if (profileChoice)
        profileChoice->noteApplied();
}

void Preferences::writeCursorFlag(bool value) { ::writeCursorFlag(*this, value); }
