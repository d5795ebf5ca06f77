// What the two kinds of colour rows share: a swatch that opens the colour dialog on a double click.
#pragma once

#include "options/kinds/row_kind.h"

#include <cstdint>

void buildSwatch(OptionDialog& options, TreeItem* item, std::uint32_t color); // 0x00BBGGRR

class SwatchKind : public RowKind {
public:
    bool isWrittenDisabled() const override { return true; } // meant
    void modify(OptionDialog& options, TreeItem* item) const override;
    bool isModifiedInDialog() const override { return true; }
};
