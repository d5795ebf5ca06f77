// The table of row kinds: a kind that is built and not written would be the fault that nobody sees, since its
// row takes what the user sets and loses it.
#include "options/kinds/all_kinds.h"
#include "options/kinds/row_kind.h"
#include "tests/options/options_fixture.h"

#include <set>

namespace {

// Rows without a value of their own: what they show is their page's, or there is nothing to keep.
const std::set<int> kWithoutValue{kNodePaper,      kNodeRasterFormat, kNodePath,
                                  kNodeDirSection, kNodePaperRoot,    kNodeSection};

class RowKinds : public OptionsFixture {
protected:
    // A row of the kind, whose value lies in the profile section "S" under the name.
    TreeItem* addRow(int nodeType, const QByteArray& name) {
        const OptionTreeWriter data = node(name);
        data.profile("S", name);
        auto* const added = new TreeItem(dialog->tree->topLevelItem(0));
        added->nodeName = name;
        added->nodeType = nodeType;
        dialog->optionItems[added] = data.get();
        rowKind(nodeType).build(*dialog, added, data.get(), kIdNone);
        return added;
    }
};

} // namespace

TEST_F(RowKinds, EachWithAValueOfItsOwnWritesItOnApply) {
    open();
    for (int type = 0; type < kNodeTypeCount; ++type)
        addRow(type, QByteArray::number(type));
    apply();
    for (int type = 0; type < kNodeTypeCount; ++type)
        EXPECT_EQ(isStored("S", QByteArray::number(type)), kWithoutValue.count(type) == 0)
            << "the row of the kind with the number " << type;
}

TEST_F(RowKinds, EachMakesARow) {
    open();
    for (int type = 0; type < kNodeTypeCount; ++type)
        EXPECT_NE(dialog->rowWidgets.value(addRow(type, "Row")), nullptr)
            << "the kind with the number " << type;
}

TEST_F(RowKinds, ANumberThatNoKindHasIsAPlainSection) {
    for (const int type : {int(kNodeNone), int(kNodeTypeCount), 1000})
        EXPECT_EQ(&rowKind(type), &sectionKind()) << type;
}
