// The plain section row: a name with rows below it, and nothing to do with it.
#include "options/kinds/all_kinds.h"
#include "options/kinds/row_kind.h"

const RowKind& sectionKind() {
    static const HeadingKind kind;
    return kind;
}
