// Writes the text of a line edit's row, and goes into the line edit.
#include "options/kinds/text_kind.h"

#include "host/text.h"
#include "options/store/option_values.h"

#include <QLineEdit>

void TextKind::write(OptionDialog& options, TreeItem* item) const {
    const RowNodes row = nodesOf(options, item);
    writeStringOption(row.node, row.parent, hostqt::cxStringW(item->textValue));
}

void TextKind::modify(OptionDialog& options, TreeItem* item) const {
    startEditing(editorOf<QLineEdit>(options, item));
}
