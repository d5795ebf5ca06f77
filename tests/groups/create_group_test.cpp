// The routine that makes a group, and the one that does it in a transaction.
#include "groups/command_line_from_selection.h"
#include "groups/create_group.h"
#include "host/group_services.h"
#include "sdk/db/class_registry.h"
#include "standin/params/service_hub.h"
#include "tests/groups/context_marker.h"
#include "tests/groups/debug_lines.h"
#include "tests/groups/group_fixture.h"
#include "tests/groups/scripted_step.h"
#include "tests/groups/undo_watch.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class CreateGroup : public GroupTest {
protected:
    int create(GroupData& data) { return createGroupFromData(&selection, dictionary()->objectId(), data); }
    int createNamed(const wchar_t* name) {
        GroupData data;
        data.name = name;
        return create(data);
    }
};

TEST_F(CreateGroup, NamedGroupHasEverythingOfTheRecord) {
    GroupData data;
    data.name = L"NEW";
    data.description = L"A description";
    data.selectable = false;
    selection.select(pick({3, 1}));
    EXPECT_EQ(create(data), 0);
    EXPECT_THAT(members(L"NEW"), ElementsAre(3, 1));
    EXPECT_EQ(group(L"NEW")->description(), OdString(L"A description"));
    EXPECT_FALSE(group(L"NEW")->isSelectable());
    EXPECT_FALSE(group(L"NEW")->isAnonymous());
    EXPECT_EQ(data.name, OdString(L"NEW"));
    EXPECT_EQ(selection.cleared, 1);
}

TEST_F(CreateGroup, UnnamedGroupLeavesItsNameInTheRecord) {
    GroupData data;
    data.name = L"IGNORED";
    data.unnamed = true;
    selection.select(pick({0}));
    EXPECT_EQ(create(data), 0);
    EXPECT_EQ(data.name.left(2), OdString(L"*A"));
    EXPECT_TRUE(group(data.name.c_str())->isAnonymous());
    EXPECT_FALSE(hasGroup(L"IGNORED"));
}

TEST_F(CreateGroup, HighlightOfTheSelectionIsTakenOff) {
    GroupData data;
    data.name = L"NEW";
    odrxCast<OdDbEntity>(lines[0].safeOpenObject())->highlight(true);
    selection.select(pick({0}));
    EXPECT_EQ(create(data), 0);
    EXPECT_THAT(highlightedLines(), IsEmpty());
}

TEST_F(CreateGroup, EmptySelectionAsksNothingAndMakesNothing) {
    GroupData data;
    data.name = L"NEW";
    EXPECT_EQ(create(data), 0);
    EXPECT_FALSE(hasGroup(L"NEW"));
    EXPECT_TRUE(io.transcript.empty());
}

TEST_F(CreateGroup, TakenNameGivesTheCodeAndOneDebugLine) {
    addGroup(L"TAKEN", pick({1}));
    GroupData data;
    data.name = L"TAKEN";
    selection.select(pick({0}));
    const DebugLines debug;
    EXPECT_EQ(create(data), eDuplicateKey);
    EXPECT_EQ(debug.collected, QStringList{"OdError: code 24, description TAKEN"});
    EXPECT_THAT(members(L"TAKEN"), ElementsAre(1));
}

TEST_F(CreateGroup, GroupThatFailsLaterStaysInTheDictionary) {
    GroupData data;
    data.name = L"NEW";
    selection.select({dictionary()->objectId()});
    const DebugLines debug;
    EXPECT_EQ(create(data), eNotThatKindOfClass);
    EXPECT_TRUE(hasGroup(L"NEW"));
    EXPECT_EQ(debug.collected.size(), 1);
}

// Another class, or none, for new groups.
class GroupsMadeBy {
public:
    explicit GroupsMadeBy(OdRxClass* other) : former(odDbRegisterClass("GROUP", other)) {}
    ~GroupsMadeBy() { odDbRegisterClass("GROUP", former); }
    GroupsMadeBy(const GroupsMadeBy&) = delete;
    GroupsMadeBy& operator=(const GroupsMadeBy&) = delete;

private:
    OdRxClass* former;
};

TEST_F(CreateGroup, ClassThatIsNotLoadedGivesItsCodeAndOneDebugLine) {
    selection.select(pick({0}));
    const DebugLines debug;
    const GroupsMadeBy none(nullptr);
    EXPECT_EQ(createNamed(L"NEW"), eInvalidInput);
    EXPECT_EQ(debug.collected, QStringList{"OdError: code 3, description OdDbOdDbGroupis not loaded"});
    EXPECT_EQ(dictionary()->numEntries(), 0u);
    EXPECT_THAT(selection.selected(), testing::SizeIs(1));
}

TEST_F(CreateGroup, ClassThatMakesNoGroupGivesItsTranslatedText) {
    selection.select(pick({0}));
    const DebugLines debug;
    const ContextMarker marker("QObject");
    for (OdRxClass* other : {OdDbDictionary::desc(), OdDbObject::desc()}) {
        const GroupsMadeBy makesOther(other);
        EXPECT_EQ(createNamed(L"NEW"), eInvalidInput);
    }
    const QString line = QStringLiteral("OdError: code 3, description ~Unable to create new group!");
    EXPECT_EQ(debug.collected, (QStringList{line, line}));
    EXPECT_EQ(dictionary()->numEntries(), 0u);
}

// Has a selection at the first look only.
class FleetingSelection : public ScriptedSelection {
public:
    using ScriptedSelection::ScriptedSelection;
    hostSelectionSetPtr getSelection() override {
        return ++looks == 1 ? ScriptedSelection::getSelection() : hostSelectionSetPtr();
    }
    int looks = 0;
};

TEST_F(CreateGroup, SelectionThatHasGoneAtTheSecondLookMakesNothing) {
    FleetingSelection fleeting(io);
    fleeting.select(pick({0}));
    GroupData data;
    data.name = L"NEW";
    EXPECT_EQ(createGroupFromData(&fleeting, dictionary()->objectId(), data), 0);
    EXPECT_EQ(fleeting.looks, 2);
    EXPECT_EQ(fleeting.cleared, 0);
    EXPECT_FALSE(hasGroup(L"NEW"));
}

TEST_F(CreateGroup, WithoutAnEditorNothingIsMade) {
    GroupData data;
    data.name = L"NEW";
    EXPECT_EQ(createGroupFromData(nullptr, dictionary()->objectId(), data), 0);
    EXPECT_TRUE(data.createOk);
    EXPECT_FALSE(hasGroup(L"NEW"));
}

class CreateWithStep : public CreateGroup {
protected:
    CreateWithStep() { static_cast<standin::ServiceHub*>(host.application())->add(step); }
    Ref<ScriptedStep> step = Ref<ScriptedStep>::share(new ScriptedStep(io, host.vars));
};

TEST_F(CreateWithStep, EmptySelectionIsAskedForInTheRoutineItself) {
    GroupData data;
    data.name = L"NEW";
    answer({picked(pick({2, 4}))});
    EXPECT_EQ(create(data), 0);
    ASSERT_EQ(step->requests.size(), 1u);
    EXPECT_EQ(step->requests[0].prompt, OdString(L"Select objects [End]"));
    EXPECT_EQ(step->requests[0].keywords, OdString(L"End *E _ End *E"));
    EXPECT_THAT(members(L"NEW"), ElementsAre(2, 4));
    EXPECT_TRUE(data.createOk);
    selection.select(pick({5}));
    EXPECT_EQ(createNamed(L"OTHER"), 0);
    EXPECT_EQ(step->requests.size(), 1u);
}

TEST_F(CreateWithStep, FromSelectionWithNothingChosenSaysNothingAndGivesOne) {
    for (const ScriptedAnswer& end : {cancel(), enter(), keyword(0), keyword(1)}) {
        answer({end});
        EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 1);
        EXPECT_TRUE(io.allTaken());
    }
    EXPECT_THAT(io.printed, IsEmpty());
    EXPECT_EQ(dictionary()->numEntries(), 0u);
    EXPECT_EQ(database->numActiveTransactions(), 0);
    answer({picked(pick({1}))});
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 0);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"\nA group 'Group1' was created")));
    EXPECT_THAT(members(L"Group1"), ElementsAre(1));
}

class CreationTold : public CKWUnknownImpl<IGroupServices> {
public:
    void creationFailed(const OdError& error) override {
        told.push_back(std::to_wstring(error.code()) + L" " + error.description().wide());
    }
    bool explodeGivesUpRow() override { return false; }
    std::vector<std::wstring> told;
};

TEST_F(CreateGroup, ReasonOfAFailureReachesTheHostThatWantsIt) {
    const auto services = Ref<CreationTold>::share(new CreationTold);
    static_cast<standin::ServiceHub*>(host.application())->add(services);
    addGroup(L"TAKEN", pick({1}));
    selection.select(pick({0}));
    const DebugLines debug;
    EXPECT_EQ(createNamed(L"TAKEN"), eDuplicateKey);
    EXPECT_THAT(services->told, ElementsAre(L"24 TAKEN"));
    EXPECT_EQ(debug.collected.size(), 1);
    EXPECT_EQ(createNamed(L"NEW"), 0);
    EXPECT_EQ(services->told.size(), 1u);
}

class CreateInTransaction : public CreateGroup {
protected:
    int createInside(GroupData& data) { return createInTransaction(database, io, &selection, data); }
    UndoWatch watch;
};

TEST_F(CreateInTransaction, CommitsWhatWasMade) {
    GroupData data;
    data.name = L"NEW";
    selection.select(pick({0}));
    EXPECT_EQ(createInside(data), 0);
    EXPECT_THAT(watch.calls, ElementsAre("begin", "commit"));
    EXPECT_TRUE(hasGroup(L"NEW"));
}

TEST_F(CreateInTransaction, TakesAMadeGroupBackWhereTheRecordSaysThatItIsNotWanted) {
    GroupData data;
    data.name = L"NEW";
    data.unnamed = true;
    data.createOk = false;
    selection.select(pick({0}));
    EXPECT_EQ(createInside(data), 1);
    EXPECT_EQ(data.name.left(2), OdString(L"*A")); // it was made
    EXPECT_THAT(watch.calls, ElementsAre("begin", "abort"));
    EXPECT_EQ(dictionary()->numEntries(), 0u);
    EXPECT_THAT(io.printed, IsEmpty());
}

TEST_F(CreateInTransaction, TakesAHalfMadeGroupBack) {
    GroupData data;
    data.name = L"NEW";
    selection.select({dictionary()->objectId()});
    const DebugLines debug;
    EXPECT_EQ(createInside(data), 1);
    EXPECT_EQ(debug.collected.size(), 1);
    EXPECT_THAT(watch.calls, ElementsAre("begin", "abort"));
    EXPECT_EQ(dictionary()->numEntries(), 0u);
}
