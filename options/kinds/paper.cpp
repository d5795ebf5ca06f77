// The row of a paper, which its page makes and stores.
#include "options/kinds/all_kinds.h"
#include "options/kinds/row_kind.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/rows/option_dialog.h"
#include "options/pages/rows/page_rows.h"
#include "options/pages/rows/pref_widget.h"

#include <QAbstractButton>
#include <QDialog>

namespace {

class PaperKind final : public HeadingKind {
public:
    void modify(OptionDialog& options, TreeItem* item) const override { modifyPaperFormat(options, item); }
    void add(OptionDialog& options, TreeItem* item) const override { addPaperFormat(options, item); }
    void remove(OptionDialog& options, TreeItem* item) const override { deletePaperFormat(options, item); }
    void move(OptionDialog& options, TreeItem* item, int step) const override;
    bool isModifiedInDialog() const override { return true; }
};

// The editor lives on in the new row: it leaves the old one before that goes.
void PaperKind::move(OptionDialog& options, TreeItem* item, int step) const {
    QPrefWidget* const row = options.rowWidgets.value(item);
    auto* const editor = row ? row->findChild<QAbstractButton*>() : nullptr;
    if (editor)
        editor->setParent(&options.asDialog());
    movePaperFormat(options, item, step);
    moveRow(options, item, step, editor);
}

} // namespace

const RowKind& paperKind() {
    static const PaperKind kind;
    return kind;
}
