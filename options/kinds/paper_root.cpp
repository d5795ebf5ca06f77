// The row above the papers, which takes new ones.
#include "options/kinds/all_kinds.h"
#include "options/kinds/row_kind.h"
#include "options/pages/papers/paper_page.h"

namespace {

class PaperRootKind final : public HeadingKind {
public:
    void add(OptionDialog& options, TreeItem* item) const override { addPaperFormat(options, item); }
};

} // namespace

const RowKind& paperRootKind() {
    static const PaperRootKind kind;
    return kind;
}
