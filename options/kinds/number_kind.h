// What the rows with a spin box share.
#pragma once

#include "options/kinds/editor_parts.h"
#include "options/kinds/row_kind.h"

// The unit behind the first ">" of a row's text, with a doubled percent sign standing for one.
QString unitOf(const QString& text);

template <class SpinBox> void showUnit(SpinBox* spinBox, const TreeItem* item) {
    const QString text = item->text(0);
    if (text.contains(QLatin1Char('>')))
        spinBox->setSuffix(unitOf(text));
}

class NumberKind : public RowKind {
public:
    void modify(OptionDialog& options, TreeItem* item) const override;
};
