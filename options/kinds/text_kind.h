// What the rows with a line edit share.
#pragma once

#include "options/kinds/editor_parts.h"
#include "options/kinds/row_kind.h"

class TextKind : public RowKind {
public:
    void write(OptionDialog& options, TreeItem* item) const override; // as wide text
    void modify(OptionDialog& options, TreeItem* item) const override;
};
