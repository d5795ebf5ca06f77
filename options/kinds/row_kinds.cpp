// The table of row kinds: every number of `NodeType` in its place, which the compiler checks.
#include "options/kinds/row_kind.h"

#include "options/kinds/all_kinds.h"
#include "options/pages/rows/option_dialog.h"
#include "options/pages/rows/page_rows.h"

#include <QHash>

namespace {

struct KindLine {
    NodeType number;
    const char* type;         // its `Type` in the option data; null for the rows that only pages make
    const RowKind& (&kind)(); // a reference: no line can do without one
};

constexpr KindLine kKinds[] = {
    {kNodeCheck, "Check", checkKind},
    {kNodeRadio, "Radio", radioKind},
    {kNodeRadioCursor, "RadioCursor", radioCursorKind},
    {kNodePaper, nullptr, paperKind},
    {kNodeColor, "Color", colorKind},
    {kNodeAcColor, "AcColor", acColorKind},
    {kNodeRasterFormat, nullptr, rasterFormatKind},
    {kNodeEditInt, "EditInt", editIntKind},
    {kNodeEditReal, "EditReal", editRealKind},
    {kNodeEditFile, "EditFile", editFileKind},
    {kNodeEdit, "Edit", editKind},
    {kNodeEditMultiFile, "EditMultiFile", editFileKind},
    {kNodeEditDir, "EditDir", editDirKind},
    {kNodeCombo, "Combo", comboKind},
    {kNodePath, nullptr, pathKind},
    {kNodeDirSection, nullptr, dirSectionKind},
    {kNodePaperRoot, nullptr, paperRootKind},
    {kNodeSection, nullptr, sectionKind},
};

constexpr bool everyKindStandsInItsPlace() {
    int place = 0;
    for (const KindLine& line : kKinds)
        if (line.number != place++)
            return false;
    return place == kNodeTypeCount;
}
static_assert(everyKindStandsInItsPlace(),
              "a kind of NodeType has no line in the table, or not in its place");

QHash<QString, int> numbersOfTypes() {
    QHash<QString, int> numbers{{QStringLiteral("check"), kNodeCheck}}; // the one that has two texts
    for (const KindLine& line : kKinds)
        if (line.type)
            numbers.insert(QString::fromLatin1(line.type), line.number);
    return numbers;
}

} // namespace

const RowKind& rowKind(int nodeType) {
    const bool isKnown = nodeType >= 0 && nodeType < kNodeTypeCount;
    return kKinds[isKnown ? nodeType : kNodeSection].kind();
}

int nodeTypeNumber(const QString& type) {
    static const QHash<QString, int> numbers = numbersOfTypes();
    return numbers.value(type, kNodeSection);
}

void RowKind::move(OptionDialog& options, TreeItem* item, int step) const {
    moveRow(options, item, step, nullptr);
}

void HeadingKind::build(OptionDialog& options, TreeItem* item, IParam*, int) const {
    options.makeRow(2, item, nullptr, false, 1);
}
