// The prompt for objects in use: windows, words, what is highlighted meanwhile, and the groups that come
// along.
#include "host/text.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "standin/registry.h"
#include "standin/selection/editor_selection.h"
#include "tests/standin/console_driver.h"

#include <gtest/gtest.h>

using namespace standin;

namespace {

// Three lines; those of the window are told by the test.
struct SelectionPrompt : testing::Test, ConsoleDriver {
    struct AskedWindow {
        OdGePoint3d first, second;
        bool crossing;
    };
    SelectionPrompt() {
        const auto space =
            odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
        for (int i = 0; i < 3; ++i)
            lines.push_back(space->appendOdDbEntity(OdSmartPtr<OdDbLine>(new OdDbLine).get()));
        selection.objectsAt = [this](const OdGePoint3d& point) {
            return point.x >= 0 && point.x < 3 ? pick({int(point.x)}) : OdDbObjectIdArray();
        };
        selection.objectsIn = [this](const OdGePoint3d& first, const OdGePoint3d& second, bool crossing) {
            windows.push_back({first, second, crossing});
            return inWindow;
        };
        registry().updateDisplay = [this] { ++redraws; };
    }
    ~SelectionPrompt() override { registry() = saved; }
    OdDbObjectIdArray pick(std::initializer_list<int> numbers) const {
        OdDbObjectIdArray ids;
        for (const int number : numbers)
            ids.push_back(lines[static_cast<std::size_t>(number)]);
        return ids;
    }
    void click(double x, double y = 0) { console.pickPoint({x, y, 0}); }
    int select(int flags = 0, const wchar_t* keywords = nullptr) {
        result = {};
        return selection.selectObjects(&result, 0, L"Select objects", keywords, flags, 0, 0, 0, 0);
    }
    static OdDbObjectIdArray idsOf(const hostSelectionSetPtr& set) {
        OdDbObjectIdArray ids;
        if (!set.isNull())
            set->objectIds(ids);
        return ids;
    }
    OdDbObjectIdArray selected() const { return idsOf(result); }
    OdDbObjectIdArray highlighted() const {
        OdDbObjectIdArray ids;
        for (const OdDbObjectId& id : lines)
            if (entity(id)->isHighlighted())
                ids.push_back(id);
        return ids;
    }
    static OdDbEntityPtr entity(const OdDbObjectId& id) { return odrxCast<OdDbEntity>(id.safeOpenObject()); }
    void addGroup(const wchar_t* name, const OdDbObjectIdArray& members, bool selectable = true) {
        const OdDbGroupPtr group(new OdDbGroup);
        odrxCast<OdDbDictionary>(database->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite))
            ->setAt(name, group.get());
        group->append(members);
        group->setSelectable(selectable);
    }
    void setPickStyle(int style) {
        const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kDxfInt8);
        value->setInt8(static_cast<std::int8_t>(style));
        database->setSysVar(L"PICKSTYLE", value.get());
    }
    const HostRegistry saved = registry();
    OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    EditorSelection selection{database, console};
    OdDbObjectIdArray lines, inWindow;
    std::vector<AskedWindow> windows;
    hostSelectionSetPtr result;
    int redraws = 0;
};

TEST_F(SelectionPrompt, AWindowIsDrawnByTwoClicksBesideTheObjects) {
    inWindow = pick({0, 2});
    click(10, 1);
    click(20, 2);
    click(20, 3);
    click(10, 4);
    type({""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), inWindow);
    ASSERT_EQ(windows.size(), 2u);
    EXPECT_EQ(windows[0].first, OdGePoint3d(10, 1, 0));
    EXPECT_EQ(windows[0].second, OdGePoint3d(20, 2, 0));
    EXPECT_FALSE(windows[0].crossing);
    EXPECT_TRUE(windows[1].crossing) << "from right to left";
    EXPECT_TRUE(console.transcript().contains("2 found, 2 in all."));
}

TEST_F(SelectionPrompt, WordsBeginAWindowOfTheirKindWhicheverWayItIsDrawn) {
    inWindow = pick({1});
    for (const auto& [word, crossing] :
         {std::pair("w", false), {"_Window", false}, {"c", true}, {"CROSS", true}}) {
        windows.clear();
        type({word});
        click(0); // on an object, and all the same a corner
        click(-5);
        type({""});
        EXPECT_EQ(select(), kInputPicked) << word;
        ASSERT_EQ(windows.size(), 1u) << word;
        EXPECT_EQ(windows[0].first, OdGePoint3d(0, 0, 0));
        EXPECT_EQ(windows[0].crossing, crossing) << word;
    }
    EXPECT_TRUE(console.transcript().contains("First corner: 0,0"));
    EXPECT_TRUE(console.transcript().contains("Opposite corner: -5,0"));
}

TEST_F(SelectionPrompt, EnterAtACornerGivesTheWindowUpAndEscapeThePrompt) {
    type({"w", ""});
    click(1);
    type({""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), pick({1})) << "the prompt went on after the first corner";
    click(10);
    type({""});
    click(2);
    type({""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), pick({2})) << "and after the second one";
    EXPECT_TRUE(windows.empty());
    type({"w"});
    EXPECT_EQ(select(), kInputCancelled);
    click(10);
    EXPECT_EQ(select(), kInputCancelled);
    EXPECT_EQ(unanswered, 2);
}

TEST_F(SelectionPrompt, TheSecondCornerIsAskedForWithABoxFromTheFirst) {
    bool isBox = false;
    OdGePoint3d from;
    QObject::connect(&console, &Console::promptChanged, &console, [&] {
        const OpenPrompt* const open = console.openPrompt();
        if (!open || !open->text.startsWith("Opposite"))
            return;
        isBox = open->rectangle && !open->rubberBand && !open->picksObjects;
        from = open->base.value_or(OdGePoint3d());
    });
    click(10, 3);
    select();
    EXPECT_TRUE(isBox);
    EXPECT_EQ(from, OdGePoint3d(10, 3, 0));
}

TEST_F(SelectionPrompt, WithoutSomebodyWhoDrawsAClickFindsNothing) {
    selection.objectsAt = nullptr;
    selection.objectsIn = nullptr;
    click(1);
    type({""});
    EXPECT_EQ(select(), kInputNone);
    EXPECT_TRUE(console.transcript().contains("0 found, 0 in all."));
    EXPECT_TRUE(selection.pickedIn({}, {}, true).empty());
}

TEST_F(SelectionPrompt, WhatIsTakenIsHighlightedAsLongAsThePromptLasts) {
    entity(lines[0])->highlight(true); // by somebody else
    OdDbObjectIdArray atEnd;
    QObject::connect(&console, &Console::promptChanged, &console, [&] {
        if (console.openPrompt() && console.isWaiting())
            atEnd = highlighted();
    });
    click(0);
    click(1);
    click(2);
    type({"Remove"});
    click(2);
    EXPECT_EQ(select(), kInputCancelled); // by the driver, when nothing else comes
    EXPECT_EQ(atEnd, pick({0, 1}));
    EXPECT_EQ(highlighted(), pick({0})) << "what was highlighted before stays so";
    EXPECT_GT(redraws, 4);
}

TEST_F(SelectionPrompt, AKeywordHandsOutWhatWasCollectedWhereTheCallerWantsIt) {
    click(1);
    type({"End"});
    EXPECT_EQ(select(0, L"End _ End"), kInputKeyword);
    EXPECT_TRUE(result.isNull());
    click(1);
    type({"End"});
    EXPECT_EQ(select(kKeywordKeeps, L"End _ End"), kInputKeyword);
    EXPECT_EQ(selected(), pick({1}));
    click(1);
    EXPECT_EQ(select(kKeywordKeeps, L"End _ End"), kInputCancelled);
    EXPECT_TRUE(result.isNull()) << "Escape hands out nothing";
}

TEST_F(SelectionPrompt, OnePickIsEnoughOnlyWhenItFindsSomething) {
    selection.objectsIn = nullptr;
    click(10);
    click(2);
    click(1);
    EXPECT_EQ(select(kOnePickEnds), kInputPicked);
    EXPECT_EQ(selected(), pick({2}));
    EXPECT_TRUE(console.hasInput()) << "the second click waits for the next prompt";
    console.escape();
}

TEST_F(SelectionPrompt, PicksTakeOutWhileThePromptIsToldSo) {
    QObject::connect(&console, &Console::promptChanged, &console, [&] {
        if (console.openPrompt() && console.transcript().size() == 3)
            selection.setPicksRemove(true);
    });
    for (const double x : {0.0, 1.0, 2.0, 1.0})
        click(x);
    type({""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_TRUE(console.transcript().contains("1 found, 2 in all.")) << "the last one was taken out";
}

TEST_F(SelectionPrompt, ClicksBringTheGroupsAlongThatPickStyleWants) {
    addGroup(L"A", pick({0, 1}));
    addGroup(L"B", pick({1, 2}), false);
    setPickStyle(1);
    EXPECT_EQ(selection.pickedAt({0, 0, 0}), pick({0, 1}));
    EXPECT_EQ(selection.pickedAt({2, 0, 0}), pick({2})) << "its group can't be selected";
    inWindow = pick({1});
    EXPECT_EQ(selection.pickedIn({}, {}, false), pick({1, 0}));
    setPickStyle(0);
    EXPECT_EQ(selection.pickedAt({0, 0, 0}), pick({0}));
    setPickStyle(3);
    EXPECT_EQ(selection.pickedAt({0, 0, 0}), pick({0, 1}));
    EXPECT_TRUE(selection.pickedAt({50, 0, 0}).empty());
}

TEST_F(SelectionPrompt, ObjectsAreAddedAndRemovedAndTheViewsRedrawn) {
    selection.add(pick({0, 1}));
    EXPECT_EQ(redraws, 1);
    selection.add(pick({0, 2}));
    EXPECT_EQ(idsOf(selection.getSelection()), pick({1, 0, 2})) << "what is added again comes last";
    selection.remove(pick({0}));
    EXPECT_EQ(idsOf(selection.getSelection()), pick({1, 2}));
    EXPECT_EQ(redraws, 3);
    selection.clearSelection();
    EXPECT_EQ(redraws, 4);
    EXPECT_TRUE(selection.getSelection().isNull());
}

TEST_F(SelectionPrompt, PreviousIsTheLastSelectionThatHeldSomething) {
    selection.add(pick({1}));
    selection.setSelection(hostSelectionSet::createObject(database.get()));
    selection.clearSelection();
    type({"Previous", ""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), pick({1}));
}

TEST_F(SelectionPrompt, LastIsNothingInAnEmptyDrawing) {
    for (const OdDbObjectId& id : lines)
        odrxCast<OdDbEntity>(id.safeOpenObject(OdDb::kForWrite))->erase();
    type({"Last", ""});
    EXPECT_EQ(select(), kInputNone);
}

} // namespace
