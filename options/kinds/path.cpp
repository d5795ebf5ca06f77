// The row of a directory in a list, which the page of standard directories makes and stores.
#include "options/kinds/all_kinds.h"
#include "options/kinds/row_kind.h"
#include "options/pages/directories/std_dirs_page.h"

namespace {

class PathKind final : public HeadingKind {
public:
    void modify(OptionDialog& options, TreeItem* item) const override { modifyPath(options, item); }
    void add(OptionDialog& options, TreeItem* item) const override { addPath(options, item); }
    void remove(OptionDialog& options, TreeItem* item) const override { deletePath(options, item); }
    void move(OptionDialog& options, TreeItem* item, int step) const override {
        movePath(options, item, step);
    }
    bool isModifiedInDialog() const override { return true; }
};

} // namespace

const RowKind& pathKind() {
    static const PathKind kind;
    return kind;
}
