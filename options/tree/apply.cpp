// Apply: every row of the tree on its way from its item into its store.
#include "options/window/preferences.h"

#include "host/app.h"
#include "host/text.h"
#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/raster/raster_page.h"
#include "options/pages/rows/pref_widget.h"
#include "options/store/option_values.h"
#include "options/tree/dialog_state.h"
#include "options/window/profile_choice.h"
#include "sdk/rx/color.h"

#include <QComboBox>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace {

// A row's two nodes: its own and that of its parent.
struct RowNodes {
    IParam* node;
    IParam* parent;
};

RowNodes nodesOf(const Preferences& preferences, TreeItem* item) {
    return {preferences.optionItems.value(item), preferences.parentNode(item)};
}

void writeCheck(const TreeItem& item, const RowNodes& row) {
    const bool on = item.state == 1;
    int mask = 0;
    if (!readValue(row.node, "mask", &mask)) {
        writeIntOption(row.node, row.parent, on ? 1 : 0);
        return;
    }
    const int current = intOrDefault(row.node, row.parent); // as the row before may just have written it
    writeIntOption(row.node, row.parent, on ? current | mask : current & ~mask);
}

// With a mask a row that isn't selected clears its own bits, also those that a selected row above it has just
// set. That is meant, and depends on the order of the rows.
void writeRadio(const TreeItem& item, const RowNodes& row) {
    const bool on = item.state == 1;
    int value = 0, mask = 0;
    readValue(row.node, "Value", &value);
    if (!readValue(row.node, "mask", &mask)) {
        if (on)
            writeIntOption(row.node, row.parent, value);
        return;
    }
    const int current = intOrDefault(row.node, row.parent);
    writeIntOption(row.node, row.parent, on ? current | value : current & ~value);
}

// The cursor's choice steers the colour row: the high byte of its stored colour and the flag carry it.
void writeRadioCursor(Preferences& preferences, const TreeItem& item, const RowNodes& row) {
    const int choice = static_cast<int>(item.numberValue);
    writeIntOption(row.node, row.parent, choice);
    TreeItem* colorItem = preferences.cursorColorItem;
    if (!colorItem) // data without the colour row has nothing to steer
        return;
    std::uint32_t color = colorItem->colorValue;
    if (choice == 0)
        color |= 0xFF000000;
    else if (choice == 1)
        color &= 0xFFFFFF;
    if (choice >= 0 && choice <= 2)
        preferences.writeCursorFlag(choice == 2);
    const RowNodes colorRow = nodesOf(preferences, colorItem);
    writeColorOption(colorRow.node, colorRow.parent, color);
}

void writePalette(const TreeItem& item, const RowNodes& row) {
    const std::uint32_t color = item.colorValue;
    writePaletteOption(row.node, row.parent,
                       OdCmEntityColor::lookUpACI(static_cast<std::uint8_t>(color),
                                                  static_cast<std::uint8_t>(color >> 8),
                                                  static_cast<std::uint8_t>(color >> 16)));
}

void writeEdit(const TreeItem& item, const RowNodes& row) {
    const QByteArray text = item.textValue.trimmed().toLocal8Bit();
    writeTextOption(row.node, row.parent, CXString(text.constData()));
}

void writeCombo(QPrefWidget* widget, const TreeItem& item, const RowNodes& row) {
    if (item.optionId == kIdSaveFormats) {
        writeSaveFormatOption(row.node, row.parent, static_cast<int>(item.numberValue));
        return;
    }
    if (const QComboBox* box = widget ? widget->findChild<QComboBox*>() : nullptr)
        writeStringOption(row.node, row.parent, hostqt::cxStringW(box->currentData(Qt::UserRole).toString()));
}

// The rows that are written only while they are enabled.
void writeEnabled(const TreeItem& item, const RowNodes& row) {
    switch (item.nodeType) {
    case kNodeCheck:
        return writeCheck(item, row);
    case kNodeRadio:
        return writeRadio(item, row);
    case kNodeEditInt:
        return writeIntOption(row.node, row.parent, static_cast<int>(item.numberValue));
    case kNodeEditReal:
        return writeDoubleOption(row.node, row.parent, item.numberValue);
    case kNodeEditFile:
    case kNodeEditMultiFile:
    case kNodeEditDir:
        return writeStringOption(row.node, row.parent, hostqt::cxStringW(item.textValue));
    case kNodeEdit:
        return writeEdit(item, row);
    default:
        return;
    }
}

QList<QByteArray> expandedNames(QTreeWidget* tree) {
    QList<QByteArray> names;
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        if ((*it)->isExpanded())
            names += static_cast<TreeItem*>(*it)->nodeName;
    return names;
}

// The section that keeps what the dialog itself remembers.
Ref<IParam> dialogSection() { return openChild(appService<IProfile>().get(), kDialogSection, 1); }

} // namespace

void Preferences::applyChanges() {
    storeRasterFormats(*this, theOnlyIApp);
    storeStdDirs(*this);
    storePaperFormats(theOnlyIApp, paperFormats);
    if (const Ref<IParam> section = dialogSection())
        section->removeEntry(kExpandedSections);
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        auto* item = static_cast<TreeItem*>(tree->topLevelItem(i));
        applyItem(item);
        applyChildren(item);
    }
    saveExpandedSections();
    if (profileChoice)
        profileChoice->noteApplied();
}

void Preferences::applyChildren(TreeItem* item) {
    for (int i = 0; i < item->childCount(); ++i) {
        applyItem(item->childItem(i));
        applyChildren(item->childItem(i));
    }
}

// Colours, combos and a selected cursor radio are written also while they are disabled; that is meant.
void Preferences::applyItem(TreeItem* item) {
    const RowNodes row = nodesOf(*this, item);
    switch (item->nodeType) {
    case kNodeRadioCursor:
        if (item->state == 1)
            writeRadioCursor(*this, *item, row);
        return;
    case kNodeColor:
        if (item->optionId != kIdCursorColor)
            writeColorOption(row.node, row.parent, item->colorValue);
        return;
    case kNodeAcColor:
        return writePalette(*item, row);
    case kNodeCombo:
        return writeCombo(rowWidgets.value(item), *item, row);
    default:
        if (item->isEnabled())
            writeEnabled(*item, row);
    }
}

void Preferences::writeCursorFlag(bool value) {
    const Ref<IParam> section = openChild(appService<IProfile>().get(), cursorSection, 1);
    writeValue(section.get(), cursorColorKey, static_cast<int>(value));
}

void Preferences::saveExpandedSections() {
    const QList<QByteArray> names = expandedNames(tree);
    const Ref<IParam> section = dialogSection();
    if (!section)
        return;
    section->removeEntry(kExpandedSections);
    const Ref<IParam> saved = openChild(section.get(), kExpandedSections, 1);
    for (const QByteArray& name : names)
        writeValue(saved.get(), name, 1);
}
