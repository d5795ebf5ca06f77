// What a user does to the rows of the papers.
#include "options/pages/papers/paper_page.h"
#include "options/pages/rows/page_rows.h"
#include "options/window/page_calls.h"
#include "tests/options/pages/paper_fixture.h"

#include <ctime>

namespace {

class PaperEdits : public PaperFixture {
protected:
    void openWithThree() {
        addPaper("P", L"A", 1, 1);
        addPaper("Q", L"B", 2, 2);
        addPaper("R", L"C", 3, 3);
        open();
    }
    const QString rowA = "A (1.00 x 1.00 mm)";
    const QString rowB = "B (2.00 x 2.00 mm)";
    const QString rowC = "C (3.00 x 3.00 mm)";
};

} // namespace

TEST_F(PaperEdits, UncheckingARowReachesTheStoreOnlyOnApply) {
    openWithThree();
    click(checkBoxOf(row(rowB)));
    EXPECT_EQ(preferences->paperFormats[1]->used, 0);
    EXPECT_EQ(valueOf(host.papers(), "Q", "Used").vt, kVtEmpty);
    apply();
    EXPECT_EQ(static_cast<int>(valueOf(host.papers(), "Paper00000002", "Used")), 0);
    EXPECT_EQ(valueOf(host.papers(), "Paper00000002", "Used").vt, kVtInt);
    EXPECT_EQ(static_cast<int>(valueOf(host.papers(), "Paper00000001", "Used")), 1);
    click(checkBoxOf(row(rowB)));
    EXPECT_EQ(preferences->paperFormats[1]->used, 1) << "not the 2 of a checked box";
}

TEST_F(PaperEdits, CheckingSetsTheFlagOfUsedOnARecordThatHadNoneOfItsOwn) {
    openWithThree();
    preferences->paperFormats[0]->presentFlags = 0;
    click(checkBoxOf(row(rowA)));
    EXPECT_EQ(preferences->paperFormats[0]->presentFlags, unsigned(kPaperUsed));
}

TEST_F(PaperEdits, AddLosesAnUncheckingThatWasNotApplied) {
    openWithThree();
    host.papers().onAdd = [this](QWidget*) {
        addPaper("S", L"D", 4, 4);
        return true;
    };
    click(checkBoxOf(row(rowA)));
    select(row(rowA));
    click(preferences->addButton);
    EXPECT_TRUE(checkBoxOf(row(rowA))->isChecked());
}

TEST_F(PaperEdits, AddKeepsAnUncheckingThatWasApplied) {
    openWithThree();
    host.papers().onAdd = [this](QWidget*) {
        addPaper("S", L"D", 4, 4);
        return true;
    };
    click(checkBoxOf(row(rowA)));
    apply();
    select(row(rowA));
    click(preferences->addButton);
    EXPECT_FALSE(checkBoxOf(row(rowA))->isChecked());
}

TEST_F(PaperEdits, AddOnTheRootExpandsItAndMakesTheLastRowCurrent) {
    openWithThree();
    QWidget* parent = nullptr;
    host.papers().onAdd = [this, &parent](QWidget* given) {
        parent = given;
        addPaper("S", L"D", 4, 4);
        return true;
    };
    page()->setExpanded(false);
    select(page());
    click(preferences->addButton);
    EXPECT_EQ(parent, preferences.get());
    EXPECT_TRUE(page()->isExpanded());
    EXPECT_EQ(current(), row("D (4.00 x 4.00 mm)"));
    EXPECT_EQ(names(), (QStringList{"A", "B", "C", "D"}));
}

TEST_F(PaperEdits, WhetherTheRootIsToBeExpandedIsDecidedBeforeTheHostsDialog) {
    openWithThree();
    host.papers().onAdd = [this](QWidget*) {
        preferences->tree->setCurrentItem(preferences->tree->topLevelItem(0));
        host.papers().clear();
        return true;
    };
    page()->setExpanded(false);
    select(page());
    click(preferences->addButton);
    EXPECT_TRUE(page()->isExpanded());
}

TEST_F(PaperEdits, AStoreWithoutDialogsOfItsOwnAddsAndModifiesNothing) {
    struct PlainStore : standin::ParamOf<IStdPapersParam> {};
    const auto store = Ref<PlainStore>::share(new PlainStore);
    EXPECT_FALSE(store->AddPaper(nullptr));
    EXPECT_FALSE(store->ModifyPaper(L"A4 (210.00 x 297.00 mm)", nullptr));
    EXPECT_TRUE(childrenOf(*store).isEmpty());
}

TEST_F(PaperEdits, AddThatIsTurnedDownLeavesRowsAndSelectionAsTheyWere) {
    openWithThree();
    int asked = 0;
    host.papers().onAdd = [&asked](QWidget*) { return ++asked, false; };
    TreeItem* before = row(rowB);
    select(before);
    click(checkBoxOf(before));
    select(before);
    click(preferences->addButton);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(current(), before);
    EXPECT_FALSE(checkBoxOf(before)->isChecked());
    EXPECT_EQ(page()->childCount(), 3);
}

TEST_F(PaperEdits, AddThatLeavesNoPaperAtAllIsHarmless) {
    openWithThree();
    host.papers().onAdd = [this](QWidget*) {
        host.papers().clear();
        return true;
    };
    select(page());
    click(preferences->addButton);
    EXPECT_EQ(page()->childCount(), 0);
    EXPECT_TRUE(preferences->paperFormats.empty());
    EXPECT_EQ(current(), page());
}

TEST_F(PaperEdits, TheFirstPaperOfAllBecomesCurrent) {
    open();
    host.papers().onAdd = [this](QWidget*) { return addPaper("P", L"A", 1, 1), true; };
    select(page());
    click(preferences->addButton);
    EXPECT_EQ(current(), row(rowA));
}

TEST_F(PaperEdits, AddAndModifyAreDroppedWhenTheStoreIsGone) {
    openWithThree();
    TreeItem* before = row(rowB);
    select(before);
    host.withhold(typeid(IStdPapersParam));
    click(preferences->addButton);
    EXPECT_TRUE(chooseInMenu(before, "Modify"));
    EXPECT_EQ(current(), before);
    EXPECT_EQ(names(), (QStringList{"A", "B", "C"}));
}

TEST_F(PaperEdits, ADoubleClickLetsTheHostModifyThePaperOfThatRow) {
    openWithThree();
    QStringList asked;
    host.papers().onModify = [this, &asked](const QString& rowText, QWidget* parent) {
        asked << rowText;
        EXPECT_EQ(parent, preferences.get());
        setValue(section("Q"), "Name", L"Beta");
        return true;
    };
    doubleClick(row(rowB));
    EXPECT_EQ(asked, QStringList{rowB});
    EXPECT_EQ(names(), (QStringList{"A", "Beta", "C"}));
    EXPECT_EQ(current(), page()->childItem(1));
    EXPECT_EQ(current(), row("Beta (2.00 x 2.00 mm)"));
}

TEST_F(PaperEdits, ModifyFromTheMenuPassesTheMarksOfASearch) {
    openWithThree();
    QString asked;
    host.papers().onModify = [&asked](const QString& rowText, QWidget*) {
        asked = rowText;
        return false;
    };
    TreeItem* item = row(rowB);
    searchFor("2.00 x");
    EXPECT_TRUE(chooseInMenu(item, "Modify"));
    EXPECT_EQ(asked, shown(item));
    EXPECT_TRUE(asked.contains("<span"));
    EXPECT_EQ(current(), item);
}

TEST_F(PaperEdits, AModifyThatDropsTheLastPaperLeavesNoRowToMakeCurrent) {
    openWithThree();
    host.papers().onModify = [this](const QString&, QWidget*) {
        host.papers().removeEntry("R");
        return true;
    };
    doubleClick(row(rowC));
    EXPECT_EQ(names(), (QStringList{"A", "B"}));
}

TEST_F(PaperEdits, ADeletedPaperIsGoneFromTheStoreAtOnce) {
    openWithThree();
    const int rowsBefore = preferences->rowWidgets.size();
    host.answer(EV_MB_YES);
    select(row(rowB));
    click(preferences->deleteButton);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Do you really want to delete paper format:\nB?");
    EXPECT_EQ(int(host.messages[0].buttons), EV_MB_YES | EV_MB_NO);
    EXPECT_EQ(storedNames(), (QStringList{"A", "C"}));
    EXPECT_EQ(childrenOf(host.papers()), (QStringList{"Paper00000001", "Paper00000002"}));
    EXPECT_EQ(names(), (QStringList{"A", "C"}));
    EXPECT_EQ(rowsBelow(page()), (QStringList{rowA, rowC}));
    EXPECT_EQ(preferences->rowWidgets.size(), rowsBefore - 1) << "the dialog has forgotten the row";
    click(preferences->cancelButton);
    EXPECT_EQ(storedNames(), (QStringList{"A", "C"}));
}

TEST_F(PaperEdits, DeletingWritesWhatStandsInTheOtherRows) {
    openWithThree();
    host.answer(EV_MB_YES);
    click(checkBoxOf(row(rowA)));
    EXPECT_TRUE(chooseInMenu(row(rowC), "Delete"));
    EXPECT_EQ(static_cast<int>(valueOf(host.papers(), "Paper00000001", "Used")), 0);
}

TEST_F(PaperEdits, DeletingIsDroppedOnNo) {
    openWithThree();
    host.answer(EV_MB_NO);
    select(row(rowB));
    click(preferences->deleteButton);
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(page()->childCount(), 3);
    EXPECT_EQ(childrenOf(host.papers()), (QStringList{"P", "Q", "R"}));
}

TEST_F(PaperEdits, DeletingARecordThatTheDialogDoesNotHoldChangesNothing) {
    openWithThree();
    PaperFormat stray;
    TreeItem* item = row(rowB);
    void* own = std::exchange(item->payload, &stray);
    host.answer(EV_MB_YES);
    deletePaperFormat(*preferences, item);
    item->payload = own;
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(page()->childCount(), 3);
    EXPECT_EQ(names().size(), 3);
}

TEST_F(PaperEdits, WithoutAnApplicationADeletedPaperOnlyLeavesTheDialog) {
    openWithThree();
    host.answer(EV_MB_YES);
    select(row(rowB));
    host.withholdApplication();
    click(preferences->deleteButton);
    EXPECT_EQ(names(), (QStringList{"A", "C"}));
    EXPECT_EQ(childrenOf(host.papers()), (QStringList{"P", "Q", "R"}));
}

TEST_F(PaperEdits, NamesWithPlaceholdersAndMarkupStandInTheQuestionAsTheyAre) {
    addPaper("P", L"%1 <b>\"%2\"</b>", 1, 1);
    open();
    host.answer(EV_MB_NO);
    select(page()->childItem(0));
    click(preferences->deleteButton);
    EXPECT_EQ(host.messages[0].text, "Do you really want to delete paper format:\n%1 <b>\"%2\"</b>?");
}

TEST_F(PaperEdits, AMovedRowTakesItsRecordAlong) {
    openWithThree();
    select(row(rowA));
    click(preferences->downButton);
    EXPECT_EQ(rowsBelow(page()), (QStringList{rowB, rowA, rowC}));
    EXPECT_EQ(names(), (QStringList{"B", "A", "C"}));
    EXPECT_EQ(current(), row(rowA));
    click(preferences->downButton);
    EXPECT_EQ(names(), (QStringList{"B", "C", "A"}));
    EXPECT_FALSE(preferences->downButton->isEnabled());
    click(preferences->upButton);
    EXPECT_EQ(names(), (QStringList{"B", "A", "C"}));
    apply();
    EXPECT_EQ(storedNames(), (QStringList{"B", "A", "C"}));
    click(preferences->upButton);
    EXPECT_EQ(names(), (QStringList{"A", "B", "C"}));
}

TEST_F(PaperEdits, ARecordThatTheDialogDoesNotHoldDoesNotMove) {
    openWithThree();
    PaperFormat stray;
    TreeItem* item = row(rowB);
    void* own = std::exchange(item->payload, &stray);
    movePaperFormat(*preferences, item, -1);
    movePaperFormat(*preferences, item, 1);
    item->payload = own;
    EXPECT_EQ(names(), (QStringList{"A", "B", "C"}));
}

TEST_F(PaperEdits, AMovedRowKeepsAWorkingCheckBox) {
    openWithThree();
    select(row(rowA));
    click(preferences->downButton);
    click(checkBoxOf(row(rowA)));
    apply();
    EXPECT_EQ(static_cast<int>(valueOf(host.papers(), "Paper00000002", "Used")), 0);
}

TEST_F(PaperEdits, ARecordDoesNotMovePastTheEnds) {
    openWithThree();
    movePaperFormat(*preferences, row(rowA), -1);
    movePaperFormat(*preferences, row(rowC), 1);
    EXPECT_EQ(names(), (QStringList{"A", "B", "C"}));
}

TEST_F(PaperEdits, AReloadLeavesNoTraceOfTheRowsThatWent) {
    openWithThree();
    const int rowsBefore = preferences->rowWidgets.size();
    host.papers().removeEntry("Q");
    reloadPaperRows(*preferences);
    EXPECT_EQ(preferences->rowWidgets.size(), rowsBefore - 1);
    EXPECT_EQ(preferences->optionItems.size(), 2) << "the page and the root section";
}

TEST_F(PaperEdits, AThousandPapersOnTheScreenAreReloadedInTheTimeOfAThousandRows) {
    for (int i = 0; i < 1000; ++i)
        addPaper(("P" + std::to_string(i)).c_str(), L"Sheet", i, 1);
    const std::clock_t start = std::clock(); // processor time, so that other programs don't matter
    open();
    const std::clock_t opened = std::clock();
    reloadPaperRows(*preferences);
    EXPECT_EQ(page()->childCount(), 1000);
    EXPECT_LT(std::clock() - opened, 10 * (opened - start)) << "one layout for each row takes far longer";
}

TEST_F(PaperEdits, AStoreThatRefusesInTheMiddleOfApplyDoesNotStopTheDialog) {
    openWithThree();
    int changes = 0;
    host.rules(host.papers()).mayChange = [&changes] { return ++changes < 6; };
    apply();
    EXPECT_EQ(names(), (QStringList{"A", "B", "C"})) << "nothing is lost in the dialog";
    EXPECT_GE(changes, 6);
    host.rules(host.papers()).mayChange = nullptr;
    apply();
    EXPECT_EQ(storedNames(), (QStringList{"A", "B", "C"}));
}
