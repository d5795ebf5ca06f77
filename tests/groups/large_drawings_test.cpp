// Very many groups, and a group of very many members: the commands do with them what they do with a few.
#include "groups/command_line_from_selection.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_unified.h"
#include "tests/groups/group_dialog_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

class ManyGroups : public GroupDialog {
protected:
    static constexpr int kCount = 100000;
    ManyGroups() {
        const OdDbDictionaryPtr groups = dictionary(OdDb::kForWrite);
        for (const wchar_t* name : {L"CHAIR", L"TABLE"})
            groups->remove(name);
        for (int number = 1; number <= kCount; ++number) {
            const OdDbGroupPtr made(new OdDbGroup);
            groups->setAt(nameOf(number), made.get());
            made->append(pick({0, 1}));
        }
    }
    static OdString nameOf(int number) { return L"Group" + std::to_wstring(number); }
};

TEST_F(ManyGroups, EachIsListedAndTheNextGetsTheNextNumber) {
    answer({keyword(0), enter(), cancel()});
    EXPECT_EQ(run<CCommandLineGroupUnified>(), 1);
    const auto listed = std::count_if(io.printed.begin(), io.printed.end(),
                                      [](const OdString& line) { return line.find(L'G') == 2; });
    EXPECT_EQ(listed, kCount);
    selection.select(pick({2, 3}));
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 0);
    EXPECT_THAT(members(nameOf(kCount + 1).c_str()), ElementsAre(2, 3));
}

TEST_F(ManyGroups, DialogShowsAllAndCancelTakesItsChangesBack) {
    user.then([](QDialog& dialog) {
        EXPECT_EQ(table(dialog).rowCount(), kCount);
        choose(dialog, "Group4711");
        in<QLineEdit>(dialog, "nameEdit").setText(QStringLiteral("RENAMED"));
        DialogUser::clickIn(dialog, "renameButton");
        EXPECT_EQ(message(dialog), QStringLiteral("Group name has been updated."));
        choose(dialog, "Group99999");
        DialogUser::clickIn(dialog, "explodeButton");
        EXPECT_EQ(table(dialog).rowCount(), kCount - 1);
        DialogUser::clickIn(dialog, "cancelButton");
    });
    runDialog();
    EXPECT_EQ(dictionary()->numEntries(), static_cast<unsigned>(kCount));
    EXPECT_TRUE(hasGroup(L"Group4711"));
    EXPECT_TRUE(hasGroup(L"Group99999"));
}

class ManyMembers : public GroupTest {
protected:
    static constexpr int kCount = 1000000;
    ManyMembers() {
        while (lines.size() < kCount)
            addLine();
        addGroup(L"BIG", lines);
    }
    OdDbObjectIdArray order() const {
        OdDbObjectIdArray ids;
        group(L"BIG")->allEntityIds(ids);
        return ids;
    }
};

// One test, since the drawing takes its time and its memory.
TEST_F(ManyMembers, AreReversedMovedTakenBackHighlightedAndRemoved) {
    database->startUndoRecord();
    answer({keyword(1), typed(L"BIG"), keyword(0)});
    EXPECT_EQ(run<CCommandLineGroupUnified>(), 0);
    EXPECT_TRUE(order() == OdDbObjectIdArray(lines.rbegin(), lines.rend()));
    answer({keyword(1), typed(L"BIG"), typed(L"0"), typed(L"999990"), typed(L"10")});
    EXPECT_EQ(run<CCommandLineGroupUnified>(), 0);
    EXPECT_EQ(io.prompts.back().text, OdString(L"Enter number of objects to reorder (1 - 10):"));
    EXPECT_EQ(order()[0], lines[kCount - 11]);
    EXPECT_EQ(order()[999990], lines[kCount - 1]);
    EXPECT_TRUE(database->undo());
    EXPECT_TRUE(order() == lines);

    answer({keyword(2), typed(L"BIG")});
    EXPECT_EQ(run<CCommandLineGroupUnified>(), 0);
    EXPECT_EQ(highlightedLines().size(), lines.size());

    setPickStyle(0);
    selection.select(OdDbObjectIdArray(lines.end() - 1000, lines.end()));
    answer({typed(L"BIG")});
    EXPECT_EQ(run<CCommandLineGroupRemoveObject>(), 0);
    EXPECT_TRUE(order() == OdDbObjectIdArray(lines.begin(), lines.end() - 1000));

    selection.select(OdDbObjectIdArray(lines.begin() + 1, lines.end()));
    answer({keyword(3), typed(L"BIG")});
    EXPECT_EQ(run<CCommandLineGroupUnified>(), 0);
    EXPECT_EQ(io.printed.back(),
              OdString(L"\n998999 entities from current selection removed from group 'BIG'"));
    EXPECT_TRUE(order() == pick({0}));
}
