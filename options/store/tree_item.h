// An item of the option tree. It holds the value of its row from the moment the row is built until Apply.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTreeWidgetItem>
#include <cstdint>

// What a row is; the numbers are those of the option tree's data and of the pages.
enum NodeType : std::int32_t {
    kNodeNone = -1,
    kNodeCheck = 0,
    kNodeRadio = 1,
    kNodeRadioCursor = 2,
    kNodePaper = 3,
    kNodeColor = 4,
    kNodeAcColor = 5,
    kNodeRasterFormat = 6,
    kNodeEditInt = 7,
    kNodeEditReal = 8,
    kNodeEditFile = 9,
    kNodeEdit = 10,
    kNodeEditMultiFile = 11,
    kNodeEditDir = 12,
    kNodeCombo = 13,
    kNodePath = 14,
    kNodeDirSection = 15,
    kNodePaperRoot = 16,
    kNodeSection = 17,
    kNodeTypeCount // new kinds go above; each needs its line in options/kinds/row_kinds.cpp
};

// Values of a node's `ID` that mean something.
enum OptionId : std::int32_t {
    kIdNone = -1,
    kIdPapers = 0x10000,
    kIdStdDirs = 0x80000,
    kIdRasterFormats = 0x800000,
    kIdCursorColor = 0x200000,
    kIdSaveFormats = 0x1000000,
    kIdTemplateFiles = 0x195C5,
    kIdStandardFiles = 0x195C6,
    kIdLogFiles = 0x195C7
};

// Bits of a row's button mask.
enum ButtonMask : std::uint32_t {
    kMaskDelete = 1,
    kMaskModify = 2,
    kMaskAdd = 4,
    kMaskUp = 8,
    kMaskDown = 16,
    kMaskNone = 0xFFFFFFFF // no operation at all
};

class TreeItem : public QTreeWidgetItem {
public:
    using QTreeWidgetItem::QTreeWidgetItem;

    TreeItem* parentItem() const { return static_cast<TreeItem*>(parent()); } // null for the root
    TreeItem* childItem(int index) const { return static_cast<TreeItem*>(child(index)); }
    bool isEnabled() const { return flags() & Qt::ItemIsEnabled; }
    void setEnabledFlag(bool enabled) {
        setFlags(enabled ? flags() | Qt::ItemIsEnabled : flags() & ~Qt::ItemIsEnabled);
    }

    std::uint32_t buttonMask = kMaskNone;
    std::int32_t nodeType = kNodeNone;
    std::int32_t state = 2; // 1 checked or selected, 0 not, 2 for a row without that notion: it counts as on
    std::int32_t imageId = 0;
    double numberValue = 0;
    QString textValue;
    std::uint32_t colorValue = 0; // 0x00BBGGRR
    QByteArray nodeName;          // a copy: the store's own name dies with its enumerator
    void* payload = nullptr;      // a record of the row's page
    QString description;
    QString searchWords; // found like the description, but not shown; empty unless the host wants them found
    std::int32_t optionId = kIdNone;
};
