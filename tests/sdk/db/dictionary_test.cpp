// Dictionaries: names, order, erased entries.
#include "tests/sdk/db/drawing_fixture.h"

#include <functional>

class Dictionaries : public DrawingTest {
protected:
    std::vector<std::wstring> names(int order) {
        std::vector<std::wstring> result;
        for (auto it = groupsOf(*database)->newIterator(order); !it->done(); it->next())
            result.push_back(it->name().wide());
        return result;
    }
};

using Names = std::vector<std::wstring>;

TEST_F(Dictionaries, NamesIgnoreCaseAndKeepTheirSpelling) {
    const OdDbObjectId id = addGroup(*database, L"WallS", {});
    EXPECT_TRUE(groupsOf(*database)->has(L"wALLs"));
    EXPECT_EQ(groupsOf(*database)->getAt(L"WALLS", nullptr), id);
    EXPECT_EQ(groupsOf(*database)->nameAt(id), OdString(L"WallS"));
}

TEST_F(Dictionaries, NamesThatDifferInAMarkOfTheByteOrderAreTwo) {
    const OdDbObjectId plain = addGroup(*database, L"Study", {});
    EXPECT_FALSE(groupsOf(*database)->has(L"\xFEFF"
                                          L"Study"));
    EXPECT_NE(addGroup(*database,
                       L"\xFEFF"
                       L"Study",
                       {}),
              plain);
}

TEST_F(Dictionaries, IteratorOfTypeZeroGoesInOrderOfInsertionAndTypeOneByName) {
    for (const wchar_t* name : {L"b", L"C", L"a"})
        addGroup(*database, name, {});
    EXPECT_EQ(names(0), (Names{L"b", L"C", L"a"}));
    EXPECT_EQ(names(1), (Names{L"a", L"b", L"C"}));
    EXPECT_EQ(groupsOf(*database)->newIterator()->name(), OdString(L"b"));
}

TEST_F(Dictionaries, ErasedEntriesAreSkipped) {
    addGroup(*database, L"a", {});
    const OdDbObjectId id = addGroup(*database, L"b", {});
    id.safeOpenObject(OdDb::kForWrite)->erase(true);
    EXPECT_EQ(groupsOf(*database)->numEntries(), 1u);
    EXPECT_FALSE(groupsOf(*database)->has(L"b"));
    EXPECT_EQ(names(0), Names{L"a"});
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    EXPECT_EQ(again->writeBytes().find("\nb\n"), std::string::npos);
}

TEST_F(Dictionaries, TakenNameThrowsAndFreedNameDoesNot) {
    const OdDbObjectId id = addGroup(*database, L"a", {});
    EXPECT_EQ(codeOf([&] { addGroup(*database, L"A", {}); }), eDuplicateKey);
    EXPECT_EQ(groupsOf(*database)->getAt(L"a"), id);
    id.safeOpenObject(OdDb::kForWrite)->erase(true);
    EXPECT_NO_THROW(addGroup(*database, L"A", {}));
    EXPECT_EQ(groupsOf(*database)->numEntries(), 1u);
}

TEST_F(Dictionaries, RemoveGivesTheIdAndLeavesTheObject) {
    const OdDbObjectId id = addGroup(*database, L"a", {});
    EXPECT_EQ(groupsOf(*database, OdDb::kForWrite)->remove(L"A"), id);
    EXPECT_FALSE(id.isErased());
    EXPECT_FALSE(groupsOf(*database)->has(L"a"));
    EXPECT_EQ(openGroup(id)->name(), OdString());
    EXPECT_TRUE(groupsOf(*database, OdDb::kForWrite)->remove(L"a").isNull());
}

TEST_F(Dictionaries, ChangesNeedTheDictionaryOpenForWrite) {
    addGroup(*database, L"a", {});
    OdDbGroupPtr group(new OdDbGroup);
    EXPECT_EQ(codeOf([&] { groupsOf(*database)->setAt(L"b", group.get()); }), eNotOpenForWrite);
    EXPECT_EQ(codeOf([&] { groupsOf(*database)->remove(L"a"); }), eNotOpenForWrite);
}

TEST_F(Dictionaries, AbsentNameOpensNull) {
    EXPECT_TRUE(groupsOf(*database)->getAt(L"none", OdDb::kForWrite).isNull());
    OdResult status = eOk;
    EXPECT_TRUE(groupsOf(*database)->getAt(L"none", &status).isNull());
    EXPECT_EQ(status, eKeyNotFound);
}

TEST_F(Dictionaries, ManyEntriesStayQuick) {
    const auto groups = groupsOf(*database, OdDb::kForWrite);
    for (int i = 0; i < 5000; ++i) {
        OdDbGroupPtr group(new OdDbGroup);
        groups->setAt(OdString(L"G") + OdString(std::to_wstring(i)), group.get());
    }
    EXPECT_EQ(groups->numEntries(), 5000u);
    EXPECT_TRUE(groups->has(L"g4999"));
}

// After each change the dictionary says what one says that is made anew of the same tags.
class ChangedDictionary : public Dictionaries {
protected:
    void expectAsReadAnew(const char* after) {
        const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
        const auto read = groupsOf(*again), present = groupsOf(*database);
        EXPECT_EQ(present->numEntries(), read->numEntries()) << after;
        for (auto it = read->newIterator(); !it->done(); it->next()) {
            const OdDbObjectId id = present->getAt(it->name());
            EXPECT_EQ(id.getHandle(), it->objectId().getHandle()) << after;
            EXPECT_EQ(present->nameAt(id), it->name()) << after;
        }
    }
    void step(const char* what, const std::function<void(OdDbDictionary&)>& change) {
        database->startUndoRecord();
        change(*groupsOf(*database, OdDb::kForWrite));
        expectAsReadAnew(what);
        database->undo();
        expectAsReadAnew((std::string("undone: ") + what).c_str());
        database->redo();
        expectAsReadAnew((std::string("done again: ") + what).c_str());
    }
};

TEST_F(ChangedDictionary, KnowsItsEntriesThereAndBack) {
    for (const wchar_t* name : {L"a", L"b", L"c", L"d"})
        addGroup(*database, name, {});
    expectAsReadAnew("added");
    const auto add = [](const wchar_t* name) {
        return [name](OdDbDictionary& groups) {
            OdDbGroupPtr group(new OdDbGroup);
            groups.setAt(name, group.get());
        };
    };
    step("one at the end", add(L"e"));
    step("two at the end", [&](OdDbDictionary& groups) {
        add(L"f")(groups);
        add(L"g")(groups);
    });
    step("renamed", [](OdDbDictionary& groups) { groups.setName(L"b", L"B2"); });
    step("renamed in another case", [](OdDbDictionary& groups) { groups.setName(L"c", L"C"); });
    step("the last one gone", [](OdDbDictionary& groups) { groups.remove(L"g"); });
    step("the first one gone", [](OdDbDictionary& groups) { groups.remove(L"a"); });
    step("one in the middle gone", [](OdDbDictionary& groups) { groups.remove(L"d"); });
    step("gone and another one at the end", [&](OdDbDictionary& groups) {
        groups.remove(L"f");
        add(L"h")(groups);
        groups.setName(L"h", L"i");
    });
    EXPECT_EQ(names(0), (Names{L"B2", L"C", L"e", L"i"}));
}

TEST_F(ChangedDictionary, OfAFileThatNamesAnObjectTwiceKnowsBothNames) {
    const OdDbObjectId first = addGroup(*database, L"a", {});
    addGroup(*database, L"b", {});
    std::string text = database->writeBytes();
    const std::string entry = "350\n" + first.getHandle().ascii().toUtf8() + "\n";
    text.insert(text.find(entry) + entry.size(), "  3\ntwin\n" + entry);
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(text);
    const auto groups = groupsOf(*read, OdDb::kForWrite);
    EXPECT_EQ(groups->numEntries(), 3u);
    groups->setName(L"twin", L"other");
    EXPECT_TRUE(groups->has(L"other"));
    EXPECT_TRUE(groups->has(L"a"));
    EXPECT_EQ(groups->nameAt(groups->getAt(L"a")), OdString(L"a")) << "the first name is its name";
    groups->remove(L"a");
    EXPECT_FALSE(groups->has(L"a"));
    EXPECT_TRUE(groups->has(L"other"));
    EXPECT_EQ(groups->nameAt(groups->getAt(L"other")), OdString(L"other"));
}
