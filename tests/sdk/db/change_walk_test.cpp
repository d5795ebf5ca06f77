// Long walks of changes with undo, redo and aborts: what a dictionary and a group keep beside their tags
// stays what a reader finds in the file.
#include "tests/sdk/db/drawing_fixture.h"

#include <random>

class ChangeWalk : public DrawingTest, public testing::WithParamInterface<unsigned> {
protected:
    void SetUp() override {
        for (int i = 0; i < 12; ++i)
            lines.push_back(addLine(*database, i + 1));
        addGroup(*database, L"G0", {lines[0], lines[1]});
        database = OdDbDatabase::readBytes(database->writeBytes()); // where no undo goes back to
        lines = modelSpace();
    }
    unsigned roll(unsigned sides) { return std::uniform_int_distribution<unsigned>(0, sides - 1)(dice); }
    OdString anyName() { return OdString((roll(2) ? L"g" : L"G") + std::to_wstring(roll(8))); }
    OdDbGroupPtr anyGroup() {
        return odrxQuery<OdDbGroup>(groupsOf(*database)->getAt(anyName(), OdDb::kForWrite).get());
    }
    OdDbObjectIdArray anyLines() {
        OdDbObjectIdArray ids;
        for (unsigned i = roll(4); i > 0; --i)
            ids.push_back(lines[roll(12)]);
        return ids;
    }

    void changeDictionary() {
        const auto groups = groupsOf(*database, OdDb::kForWrite);
        switch (roll(3)) {
        case 0:
            groups->setAt(anyName(), OdDbGroupPtr(new OdDbGroup).get());
            break;
        case 1:
            groups->setName(anyName(), anyName());
            break;
        default:
            groups->remove(anyName());
        }
    }
    void changeGroup() {
        const OdDbGroupPtr group = anyGroup();
        if (group.isNull())
            return;
        switch (roll(7)) {
        case 0:
            return group->append(anyLines());
        case 1:
            return group->remove(anyLines());
        case 2:
            return group->reverse();
        case 3:
            return group->transfer(roll(6), roll(6), roll(4));
        case 4:
            return group->setDescription(anyName());
        case 5:
            group->erase(true);
            return;
        default:
            group->clear();
        }
    }
    void eraseOrRestoreLine() { lines[roll(12)].safeOpenObject(OdDb::kForWrite, true)->erase(roll(3) == 0); }
    void step() {
        switch (roll(9)) {
        case 0:
            database->undo();
            break;
        case 1:
            database->redo();
            break;
        case 2:
            eraseOrRestoreLine();
            break;
        case 3:
            return abortedChanges();
        case 4:
        case 5:
            changeDictionary();
            break;
        default:
            changeGroup();
        }
    }
    void abortedChanges() {
        const std::wstring before = summary(*database);
        database->startTransaction();
        for (int i = 0; i < 3; ++i)
            codeOf([this] { roll(2) ? changeGroup() : changeDictionary(); });
        database->abortTransaction();
        EXPECT_EQ(summary(*database), before);
    }
    static std::wstring summary(OdDbDatabase& drawing) {
        std::wstring text;
        const auto groups = groupsOf(drawing);
        for (auto it = groups->newIterator(); !it->done(); it->next()) {
            const auto group = odrxCast<OdDbGroup>(it->getObject());
            EXPECT_EQ(groups->getAt(it->name()), it->objectId());
            EXPECT_EQ(group->name(), it->name());
            text += it->name().wide() + L" '" + group->description().wide() + L"'";
            OdDbObjectIdArray members;
            EXPECT_EQ(group->allEntityIds(members), group->numEntities());
            for (const OdDbObjectId id : members)
                text += L' ' + id.getHandle().ascii().wide();
            text += L'\n';
        }
        return text;
    }

    OdDbObjectIdArray lines;
    std::mt19937 dice{GetParam()};
};

TEST_P(ChangeWalk, ReaderFindsWhatTheDrawingTells) {
    for (int i = 0; i < 1000; ++i) {
        if (roll(2))
            database->startUndoRecord();
        codeOf([this] { step(); });
        if (i % 10 == 0) {
            ASSERT_EQ(summary(*OdDbDatabase::readBytes(database->writeBytes())), summary(*database)) << i;
        }
    }
    const std::wstring atTheEnd = summary(*database);
    int steps = 0;
    while (database->undo())
        ++steps;
    const std::wstring atTheStart = summary(*database);
    for (; steps > 0; --steps)
        EXPECT_TRUE(database->redo());
    EXPECT_EQ(summary(*database), atTheEnd);
    EXPECT_NE(atTheStart, atTheEnd);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ChangeWalk, testing::Range(1u, 13u));
