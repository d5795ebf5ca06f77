// The row above a list of directories, which takes new ones.
#include "options/kinds/all_kinds.h"
#include "options/kinds/row_kind.h"
#include "options/pages/directories/std_dirs_page.h"

namespace {

class DirSectionKind final : public HeadingKind {
public:
    void add(OptionDialog& options, TreeItem* item) const override { addPath(options, item); }
};

} // namespace

const RowKind& dirSectionKind() {
    static const DirSectionKind kind;
    return kind;
}
