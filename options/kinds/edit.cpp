// The row with a line of text.
#include "host/text.h"
#include "host/tool_tip.h"
#include "options/kinds/all_kinds.h"
#include "options/kinds/text_kind.h"
#include "options/pages/rows/line_edit.h"
#include "options/store/option_values.h"

namespace {

class EditKind final : public TextKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const override;
    void write(OptionDialog& options, TreeItem* item) const override; // as 8-bit text
};

void EditKind::build(OptionDialog& options, TreeItem* item, IParam* node, int) const {
    const QString value = hostqt::qString(textOrDefault(node, options.parentNode(item))).trimmed();
    auto* edit = new LineEdit(item, options.tree, value, nullptr);
    nameEditor(edit, item);
    item->textValue = value;
    item->buttonMask = kMaskModify;
    edit->setCursorPosition(0);
    edit->setToolTip(hostqt::plainToolTip(value));
    options.makeRow(1, item, edit, false, 1);
    QObject::connect(edit, &QLineEdit::textChanged, edit, [edit, item](const QString& text) {
        item->textValue = text.trimmed();
        edit->setToolTip(hostqt::plainToolTip(item->textValue));
    });
}

void EditKind::write(OptionDialog& options, TreeItem* item) const {
    const RowNodes row = nodesOf(options, item);
    const QByteArray text = item->textValue.trimmed().toLocal8Bit();
    writeTextOption(row.node, row.parent, CXString(text.constData()));
}

} // namespace

const RowKind& editKind() {
    static const EditKind kind;
    return kind;
}
