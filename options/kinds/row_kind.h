// What the dialog does with one kind of row. Each kind is a class in a file of its own in this folder, and
// one line of the table in row_kinds.cpp.
#pragma once

#include "options/store/tree_item.h"

#include <QString>

class IParam;
class OptionDialog;

class RowKind {
public:
    virtual ~RowKind() = default;

    // Reads the value of `node` into the item and makes its row. `id` is the node's `ID`.
    virtual void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const = 0;
    // On Apply: the item's value on its way into the store, which may be nowhere.
    virtual void write(OptionDialog& options, TreeItem* item) const = 0;
    virtual bool isWrittenDisabled() const { return false; } // else `write` runs for enabled rows alone

    // The operations of the user on the row. A kind without one of them does nothing.
    virtual void modify(OptionDialog&, TreeItem*) const {}
    virtual void add(OptionDialog&, TreeItem*) const {}
    virtual void remove(OptionDialog&, TreeItem*) const {}
    // One place up (-1) or down (1), where there is one. Unless the kind says otherwise the row moves alone:
    // no data of a page follows, and an editor isn't kept, which is meant.
    virtual void move(OptionDialog& options, TreeItem* item, int step) const;
    virtual bool isModifiedInDialog() const { return false; } // by keys: `modify` instead of the row's editor
};

// The kinds without a value of their own: a page keeps it, or there is none. Made by the walk, the row is a
// text alone.
class HeadingKind : public RowKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const override;
    void write(OptionDialog&, TreeItem*) const override {}
};

// The kind of a number; one that no kind has, as that of the root, gives the section row.
const RowKind& rowKind(int nodeType);
// The number of a `Type` text, compared with its case; a text that names no kind gives the section row.
int nodeTypeNumber(const QString& type);
