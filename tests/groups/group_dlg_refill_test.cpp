// What the dialog "Object Grouping" shows after its table was filled anew, and where it scrolls to.
#include "host/group_services.h"
#include "host/text.h"
#include "standin/params/service_hub.h"
#include "tests/groups/group_dialog_fixture.h"

#include <QCheckBox>
#include <QtTest>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class GroupDialogRefill : public GroupDialog {
protected:
    GroupDialogRefill() {
        standin::registry().updateDisplay = [this] { ++redraws; };
    }
    void addMany() {
        for (int number = 10; number < 70; ++number)
            addGroup((L"G" + std::to_wstring(number)).c_str(), pick({4}));
    }
    void showDialog() {
        dialog = std::make_unique<CGroupDlg>(&window, dictionary()->objectId(), data);
        dialog->show();
    }
    static bool isOnScreen(const QDialog& shown, const char* name) {
        const auto found = table(shown).findItems(QLatin1String(name), Qt::MatchExactly);
        return found.size() == 1 &&
               table(shown).viewport()->rect().contains(table(shown).visualItemRect(found.front()));
    }
    void clickIn(const char* button) const { DialogUser::clickIn(*dialog, button); }
    QString text(const char* edit) const { return in<QLineEdit>(*dialog, edit).text(); }

    GroupData data;
    std::unique_ptr<CGroupDlg> dialog;
    int redraws = 0;
};

TEST_F(GroupDialogRefill, MadeGroupIsOnTheScreenAfterNew) {
    addMany();
    selection.select(pick({5}));
    user.then([](QDialog& shown) {
            type(shown, "nameEdit", "zebra");
            DialogUser::clickIn(shown, "newButton");
        })
        .then([&](QDialog& shown) {
            EXPECT_TRUE(isOnScreen(shown, "ZEBRA"));
            EXPECT_EQ(enabledButtons(shown), all);
            DialogUser::clickIn(shown, "okButton");
        });
    EXPECT_EQ(runDialog(), 0);
}

TEST_F(GroupDialogRefill, FormerlyChosenGroupDoesNotComeBackByItself) {
    showDialog();
    choose(*dialog, "TABLE");
    in<QCheckBox>(*dialog, "highlightCheck").click();
    EXPECT_THAT(highlightedLines(), ElementsAre(0, 1, 2));
    type(*dialog, "nameEdit", "typed");
    type(*dialog, "descriptionEdit", "as well");
    redraws = 0;
    dialog->refillTable();
    EXPECT_THAT(highlightedLines(), IsEmpty());
    EXPECT_EQ(redraws, 1);
    EXPECT_FALSE(data.highlighted);
    EXPECT_TRUE(data.group.isNull());
    EXPECT_EQ(text("nameEdit"), QStringLiteral("typed"));
    EXPECT_EQ(text("descriptionEdit"), QStringLiteral("as well"));
    dialog->refillTable();
    EXPECT_EQ(redraws, 1);
    choose(*dialog, "CHAIR");
    EXPECT_THAT(highlightedLines(), ElementsAre(3));
    EXPECT_EQ(text("nameEdit"), QStringLiteral("CHAIR"));
}

TEST_F(GroupDialogRefill, IncludeUnnamedLeavesTheButtonsTheRowAndTheTextsAlone) {
    showDialog();
    choose(*dialog, "TABLE");
    type(*dialog, "nameEdit", "typed");
    in<QCheckBox>(*dialog, "includeUnnamedCheck").click();
    EXPECT_EQ(enabledButtons(*dialog), all);
    EXPECT_EQ(data.currentRow, 1);
    EXPECT_EQ(text("nameEdit"), QStringLiteral("typed"));
    EXPECT_EQ(data.group->name(), OdString(L"TABLE"));
    for (const char* button : {"reorderButton", "findNameButton"})
        in<QPushButton>(*dialog, button).setEnabled(false);
    in<QCheckBox>(*dialog, "includeUnnamedCheck").click();
    EXPECT_FALSE(isEnabled(*dialog, "reorderButton"));
    EXPECT_FALSE(isEnabled(*dialog, "findNameButton"));
}

// The buttons are enabled then, with no row chosen.
TEST_F(GroupDialogRefill, AddAndRemoveWithoutAChosenGroupEndTheRunAndKeepTheChanges) {
    for (const char* button : {"addButton", "removeButton"}) {
        selection.select(pick({5}));
        user.then([](QDialog& shown) {
                type(shown, "nameEdit", "lamp");
                DialogUser::clickIn(shown, "newButton");
            })
            .click(button);
        EXPECT_EQ(runDialog(), 0) << button;
        EXPECT_EQ(status, 0);
        EXPECT_THAT(members(L"LAMP"), ElementsAre(5));
        user.then([&](QDialog& shown) {
            choose(shown, "LAMP");
            DialogUser::clickIn(shown, "selectableButton");
            in<QCheckBox>(shown, "includeUnnamedCheck").click();
            DialogUser::clickIn(shown, button);
        });
        EXPECT_EQ(runDialog(), 0) << button;
        EXPECT_FALSE(group(L"LAMP")->isSelectable());
        dictionary(OdDb::kForWrite)->remove(L"LAMP");
    }
}

TEST_F(GroupDialogRefill, NewTakesSelectableFromItsBox) {
    selection.select(pick({4}));
    user.then([](QDialog& shown) {
            type(shown, "nameEdit", "lamp");
            DialogUser::clickIn(shown, "newButton");
        })
        .click("okButton");
    EXPECT_EQ(runDialog(), 0);
    EXPECT_TRUE(group(L"LAMP")->isSelectable());
}

TEST_F(GroupDialogRefill, FirstFillFindsTheNameOfTheRecordAmongNamedGroupsInItsVeryCase) {
    const OdString unnamed = odrxCast<OdDbGroup>(addUnnamed(pick({5})).safeOpenObject())->name();
    data.includeUnnamed = true;
    const std::pair<OdString, bool> names[] = {{L"TABLE", true}, {L"table", false}, {unnamed, false}};
    for (const auto& [name, isFound] : names) {
        data.name = name;
        data.currentRow = 7;
        showDialog();
        const int row = table(*dialog).findItems(hostqt::qString(name), Qt::MatchFixedString).front()->row();
        EXPECT_EQ(data.currentRow, isFound ? row : -1) << name.toUtf8();
        EXPECT_THAT(enabledButtons(*dialog), IsEmpty());
    }
}

TEST_F(GroupDialogRefill, FirstFillScrollsToTheNameOfTheRecord) {
    addMany();
    data.name = L"G69";
    showDialog();
    EXPECT_TRUE(isOnScreen(*dialog, "G69"));
    EXPECT_FALSE(isOnScreen(*dialog, "G10"));
}

TEST_F(GroupDialogRefill, SelectableScrollsToItsRow) {
    addMany();
    showDialog();
    choose(*dialog, "CHAIR");
    table(*dialog).scrollToBottom();
    ASSERT_FALSE(isOnScreen(*dialog, "CHAIR"));
    clickIn("selectableButton");
    EXPECT_TRUE(isOnScreen(*dialog, "CHAIR"));
}

TEST_F(GroupDialogRefill, ViewsAreRedrawnWhenTheHighlightChangesAndOnlyThen) {
    showDialog();
    choose(*dialog, "TABLE");
    clickIn("selectableButton");
    EXPECT_EQ(redraws, 0);
    in<QCheckBox>(*dialog, "highlightCheck").click();
    EXPECT_EQ(redraws, 1);
    choose(*dialog, "CHAIR");
    EXPECT_EQ(redraws, 2);
    in<QCheckBox>(*dialog, "highlightCheck").click();
    EXPECT_EQ(redraws, 3);
    choose(*dialog, "TABLE");
    EXPECT_EQ(redraws, 3);
}

TEST_F(GroupDialogRefill, HighlightGoesOffWithTheRow) {
    showDialog();
    choose(*dialog, "TABLE");
    in<QCheckBox>(*dialog, "highlightCheck").click();
    in<QCheckBox>(*dialog, "includeUnnamedCheck").click();
    EXPECT_THAT(highlightedLines(), ElementsAre(0, 1, 2));
    redraws = 0;
    in<QCheckBox>(*dialog, "highlightCheck").click();
    EXPECT_THAT(highlightedLines(), IsEmpty());
    EXPECT_EQ(redraws, 1);
}

TEST_F(GroupDialogRefill, ChoosingWhatCannotBeOpenedTakesTheHighlightOff) {
    showDialog();
    choose(*dialog, "TABLE");
    in<QCheckBox>(*dialog, "highlightCheck").click();
    group(L"TABLE", OdDb::kForWrite)->erase(true);
    redraws = 0;
    table(*dialog).clearSelection();
    EXPECT_THAT(highlightedLines(), IsEmpty());
    EXPECT_EQ(redraws, 1);
}

TEST_F(GroupDialogRefill, EnterInAFieldPressesNoButton) {
    showDialog();
    for (const char* edit : {"nameEdit", "descriptionEdit"}) {
        QTest::keyClick(&in<QLineEdit>(*dialog, edit), Qt::Key_Return);
        EXPECT_TRUE(dialog->isVisible()) << edit;
    }
    clickIn("findNameButton");
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(GroupDialogRefill, TableHasRoomForFiveRows) {
    addMany();
    showDialog();
    QCoreApplication::processEvents();
    EXPECT_GE(table(*dialog).viewport()->height(), 5 * table(*dialog).rowHeight(0));
}

TEST_F(GroupDialogRefill, ExplodeLeavesAGroupOfAReferenceAlone) {
    addGroup(L"plan|X", pick({4}));
    showDialog();
    choose(*dialog, "plan|X");
    in<QPushButton>(*dialog, "explodeButton").setEnabled(true);
    clickIn("explodeButton");
    EXPECT_EQ(names(*dialog), (QStringList{"CHAIR", "plan|X", "TABLE"}));
    EXPECT_TRUE(hasGroup(L"plan|X"));
    choose(*dialog, "TABLE");
    clickIn("explodeButton");
    EXPECT_EQ(names(*dialog), (QStringList{"CHAIR", "plan|X"}));
}

// A host that wants an Explode to give up its row.
class GivingUp : public CKWUnknownImpl<IGroupServices> {
public:
    void creationFailed(const OdError&) override {}
    bool explodeGivesUpRow() override { return givesUp; }
    bool givesUp = true;
};

class GroupDialogExplode : public GroupDialogRefill {
protected:
    GroupDialogExplode() {
        addGroup(L"BED", pick({4, 5}));
        static_cast<standin::ServiceHub*>(host.application())->add(services);
        showDialog();
    }
    Ref<GivingUp> services = Ref<GivingUp>::share(new GivingUp);
};

TEST_F(GroupDialogExplode, GivesUpItsRowWhereTheHostWantsThat) {
    choose(*dialog, "CHAIR");
    clickIn("explodeButton");
    EXPECT_EQ(names(*dialog), (QStringList{"BED", "TABLE"}));
    EXPECT_FALSE(table(*dialog).currentIndex().isValid());
    EXPECT_THAT(enabledButtons(*dialog), IsEmpty());
    for (const char* button : {"descriptionButton", "selectableButton", "renameButton", "reorderButton"})
        EXPECT_NO_THROW(clickIn(button)) << button;
    EXPECT_TRUE(data.group.isNull());
    choose(*dialog, "TABLE");
    type(*dialog, "descriptionEdit", "Round");
    clickIn("descriptionButton");
    EXPECT_EQ(group(L"TABLE")->description(), OdString(L"Round"));
    EXPECT_EQ(group(L"BED")->description(), OdString());
    clickIn("explodeButton");
    EXPECT_FALSE(hasGroup(L"TABLE"));
    EXPECT_TRUE(hasGroup(L"BED"));
}

TEST_F(GroupDialogExplode, TakesTheHighlightOffWithTheRow) {
    choose(*dialog, "CHAIR");
    in<QCheckBox>(*dialog, "highlightCheck").click();
    EXPECT_THAT(highlightedLines(), ElementsAre(3));
    clickIn("explodeButton");
    EXPECT_THAT(highlightedLines(), IsEmpty());
}

TEST_F(GroupDialogExplode, KeepsTheIdsOfTheRowsWhereTheHostDoesNot) {
    services->givesUp = false;
    choose(*dialog, "CHAIR");
    clickIn("explodeButton");
    EXPECT_EQ(names(*dialog), (QStringList{"BED", "TABLE"}));
    EXPECT_EQ(codeOf([&] { clickIn("descriptionButton"); }), eWasErased);
}
