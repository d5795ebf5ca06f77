// The selection of a document and the prompt for objects.
#include "host/text.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "standin/selection/editor_selection.h"
#include "tests/standin/console_driver.h"

#include <gtest/gtest.h>

using namespace standin;

namespace {

struct SelectionTest : testing::Test, ConsoleDriver {
    SelectionTest() {
        const auto space =
            odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
        for (int i = 0; i < 3; ++i)
            lines.push_back(space->appendOdDbEntity(OdSmartPtr<OdDbLine>(new OdDbLine).get()));
    }
    int select(const wchar_t* keywords = nullptr, int flags = 0) {
        return selection.selectObjects(&result, 0, L"Select objects", keywords, flags, 0, 0, 0, 0);
    }
    OdDbObjectIdArray selected() const {
        OdDbObjectIdArray ids;
        if (!result.isNull())
            result->objectIds(ids);
        return ids;
    }
    OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    EditorSelection selection{database, console};
    OdDbObjectIdArray lines;
    hostSelectionSetPtr result;
};

TEST_F(SelectionTest, AllAndLastAreWords) {
    type({"all", ""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), lines);
    type({"L", ""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), OdDbObjectIdArray({lines[2]}));
}

TEST_F(SelectionTest, OnePickIsEnoughWhereTheCallerSaysSo) {
    type({"L"});
    EXPECT_EQ(select(nullptr, 0x1052000), kInputPicked);
    EXPECT_EQ(selected(), OdDbObjectIdArray({lines[2]}));
}

TEST_F(SelectionTest, HandlesNameObjects) {
    const QByteArray handle = hostqt::qString(lines[1].getHandle().ascii()).toLatin1();
    type({handle.constData(), ""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), OdDbObjectIdArray({lines[1]}));
}

TEST_F(SelectionTest, AHandleIsAWholeHexadecimalWordOfAnEntityInTheCurrentSpace) {
    const auto handleOf = [](const OdDbObjectId& id) { return hostqt::qString(id.getHandle().ascii()); };
    const auto paper =
        odrxCast<OdDbBlockTableRecord>(database->getPaperSpaceId().safeOpenObject(OdDb::kForWrite));
    const OdDbObjectId onPaper = paper->appendOdDbEntity(OdSmartPtr<OdDbLine>(new OdDbLine).get());
    const QString line = handleOf(lines[1]);
    for (const QString& text :
         {handleOf(database->getGroupDictionaryId(true)), handleOf(database->getModelSpaceId()),
          handleOf(onPaper), line + " " + line, line + "x", "0x" + line, "-" + line}) {
        console.enterLine(text);
        console.enterLine("");
        EXPECT_EQ(select(), kInputNone) << text.toStdString();
        EXPECT_TRUE(console.transcript().contains("\"" + text +
                                                  "\" names no object: click one, or type Window, "
                                                  "Crossing, All, Last, Previous, Remove, Add or a handle."));
    }
    console.enterLine(line.toLower());
    console.enterLine("");
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), OdDbObjectIdArray({lines[1]}));
}

TEST_F(SelectionTest, ClickTakesWhatLiesThere) {
    selection.objectsAt = [this](const OdGePoint3d& point) {
        return point.x > 0 ? OdDbObjectIdArray({lines[0]}) : OdDbObjectIdArray();
    };
    console.pickPoint({5, 5, 0});
    console.pickPoint({5, 5, 0});
    console.pickPoint({-5, 5, 0});
    type({""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), OdDbObjectIdArray({lines[0]}));
}

TEST_F(SelectionTest, PreviousIsTheSelectionBefore) {
    type({"all", ""});
    select();
    selection.clearSelection();
    EXPECT_TRUE(selection.getSelection().isNull());
    type({"p", ""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), lines);
}

TEST_F(SelectionTest, EnterWithoutObjectsIsNoAnswer) {
    type({"nonsense", ""});
    EXPECT_EQ(select(), kInputNone);
    EXPECT_TRUE(result.isNull());
}

TEST_F(SelectionTest, KeywordAndEscapeEndThePrompt) {
    type({"?"});
    EXPECT_EQ(select(L"? Name _ ? Name"), kInputKeyword);
    EXPECT_EQ(select(), kInputCancelled);
    EXPECT_TRUE(result.isNull());
}

TEST_F(SelectionTest, SetHoldsEachObjectOnce) {
    const hostSelectionSetPtr set = hostSelectionSet::createObject(database.get());
    set->append(lines[0]);
    set->append(lines[0]);
    set->append(OdDbObjectId());
    EXPECT_EQ(set->count(), 1);
    set->clear();
    EXPECT_EQ(set->count(), 0);
    set->append(lines[0]);
    EXPECT_EQ(set->count(), 1);
}

TEST_F(SelectionTest, RemoveAndAddSwitchWhatIsTaken) {
    const QByteArray handle = hostqt::qString(lines[1].getHandle().ascii()).toLatin1();
    type({"all", "Remove", handle.constData(), "L", "Add", handle.constData(), ""});
    EXPECT_EQ(select(), kInputPicked);
    EXPECT_EQ(selected(), OdDbObjectIdArray({lines[0], lines[1]}));
}

} // namespace
