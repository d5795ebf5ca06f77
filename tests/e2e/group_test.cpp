// Groups in the real workbench: the commands, the selection behind their prompts, the menus and undo.
#include "host/documents.h"
#include "sdk/db/block_table.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/entity.h"
#include "sdk/db/group.h"
#include "standin/documents/document_manager.h"
#include "standin/selection/editor_selection.h"
#include "tests/e2e/workbench_fixture.h"
#include "workbench/canvas/canvas.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

namespace {

const char* const housePath = SHIPPED_DATA_DIR "/samples/house.dxf";
const char* const desk = "15A";
const char* const chair = "15C";
const char* const bed = "155";

} // namespace

class GroupWorkbench : public WorkbenchFixture {
protected:
    GroupWorkbench() { documents().openFile(QString::fromLatin1(housePath)); }
    static standin::DocumentManager& documents() {
        return dynamic_cast<standin::DocumentManager&>(*HostDocManager());
    }
    static standin::Document& document() { return *documents().currentOne(); }
    OdDbDatabase& drawing() { return *document().database(); }
    // "A1 B2": handles in order; "none" for a group that there isn't.
    std::string membersOf(const wchar_t* name) {
        const auto groups = odrxCast<OdDbDictionary>(drawing().getGroupDictionaryId(true).safeOpenObject());
        const auto group = odrxQuery<OdDbGroup>(groups->getAt(name, OdDb::kForRead).get());
        if (group.isNull())
            return "none";
        OdDbObjectIdArray ids;
        group->allEntityIds(ids);
        std::string text;
        for (const OdDbObjectId& id : ids)
            text += (text.empty() ? "" : " ") + id.getHandle().ascii().toUtf8();
        return text;
    }
    int highlighted() {
        const auto space = odrxCast<OdDbBlockTableRecord>(drawing().getModelSpaceId().safeOpenObject());
        int count = 0;
        for (const OdDbObjectId& id : space->entityIds())
            count += odrxCast<OdDbEntity>(id.safeOpenObject())->isHighlighted();
        return count;
    }
    int pickStyle() { return drawing().getSysVar(L"PICKSTYLE")->getInt8(); }
    bool wasPrinted(const char* text) {
        const QStringList lines = transcript();
        return std::any_of(lines.begin(), lines.end(),
                           [text](const QString& l) { return l.contains(QString::fromUtf8(text)); });
    }
};

TEST_F(GroupWorkbench, AddOptionAddsWhatIsSelectedAndTidiesUp) {
    enter({"-GROUP", "Add", "STUDY", bed, "End"});
    EXPECT_EQ(membersOf(L"STUDY"), "15A 15C 155");
    EXPECT_EQ(highlighted(), 0);
    EXPECT_EQ(drawing().numActiveTransactions(), 0);
    enter({"UNDO"});
    EXPECT_EQ(membersOf(L"STUDY"), "15A 15C");
    EXPECT_TRUE(wasPrinted("Undone: -GROUP."));
    enter({"REDO"});
    EXPECT_EQ(membersOf(L"STUDY"), "15A 15C 155");
    EXPECT_TRUE(wasPrinted("Done again: -GROUP."));
    enter({"REDO"});
    EXPECT_TRUE(wasPrinted("There is nothing to redo."));
}

TEST_F(GroupWorkbench, RemoveOptionRemovesWhatIsSelectedAndRestoresPickStyle) {
    enter({"-GROUP", "Remove", "STUDY", chair, ""});
    EXPECT_EQ(membersOf(L"STUDY"), "15A");
    EXPECT_EQ(pickStyle(), 1);
    EXPECT_EQ(highlighted(), 0);
}

TEST_F(GroupWorkbench, CancelInTheMiddleOfASelectionChangesNothing) {
    play({[this] { submit("-GROUP"); }, [this] { submit("Remove"); }, [this] { submit("STUDY"); },
          [this] { submit(chair); }, [this] { press(Qt::Key_Escape); }});
    EXPECT_EQ(membersOf(L"STUDY"), "15A 15C");
    EXPECT_EQ(pickStyle(), 1);
    EXPECT_EQ(highlighted(), 0);
    EXPECT_EQ(drawing().numActiveTransactions(), 0);
    EXPECT_FALSE(drawing().isModified());
}

TEST_F(GroupWorkbench, ARunThatEndsWithoutAChangeSaysSo) {
    play({[this] { submit("-GROUP"); }, [this] { submit("Add"); }, [this] { submit("STUDY"); },
          [this] { press(Qt::Key_Escape); }});
    EXPECT_EQ(lastLine(), QStringLiteral("Nothing was changed."));
    EXPECT_FALSE(drawing().isModified());
}

TEST_F(GroupWorkbench, CreateAsksForNameDescriptionAndObjects) {
    enter({"GROUPCREATE", "Name", "REST", "Description", "Where one sleeps", bed, "", "DRAWINGS"});
    EXPECT_EQ(membersOf(L"REST"), bed);
    EXPECT_TRUE(wasPrinted("A group 'REST' was created"));
}

TEST_F(GroupWorkbench, UngroupTakesTheGroupOfOneObjectApart) {
    enter({"UNGROUP", desk});
    EXPECT_EQ(membersOf(L"STUDY"), "none");
    enter({"UNDO"});
    EXPECT_EQ(membersOf(L"STUDY"), "15A 15C");
}

TEST_F(GroupWorkbench, EditTakesTheGroupOfTheObjectAndRenamesIt) {
    enter({"GROUPEDIT", desk, "REName", "OFFICE"});
    EXPECT_EQ(membersOf(L"OFFICE"), "15A 15C");
    EXPECT_EQ(highlighted(), 0);
}

TEST_F(GroupWorkbench, SelectionBecomesAGroupAndRemoveObjectTakesOut) {
    enter({"SELECT", bed, desk, "", "GROUPSELECTION"});
    EXPECT_EQ(membersOf(L"Group1"), "155 15A");
    enter({"GROUPREMOVE", "Group1", desk, ""});
    EXPECT_EQ(membersOf(L"Group1"), "155");
}

TEST_F(GroupWorkbench, DialogListsTheGroupsAndCancelTakesChangesBack) {
    play({[this] { submit("GROUP"); },
          [] {
              auto* dialog = QApplication::activeModalWidget();
              auto* table = dialog->findChild<QTableWidget*>("groupTable");
              EXPECT_EQ(table->rowCount(), 7);
              table->selectRow(table->rowCount() - 1);
              dialog->findChild<QPushButton*>("explodeButton")->click();
              EXPECT_EQ(table->rowCount(), 6);
              dialog->findChild<QPushButton*>("cancelButton")->click();
          }});
    EXPECT_EQ(membersOf(L"STUDY"), "15A 15C");
    EXPECT_EQ(lastLine(), QStringLiteral("Nothing was changed."));
}

TEST_F(GroupWorkbench, OrderDialogOpensBehindTheDialogThatMakesWayForIt) {
    const auto press = [](const char* button) {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QPushButton*>(button)->click();
    };
    play({[this] { submit("GROUP"); },
          [&] {
              auto* table = QApplication::activeModalWidget()->findChild<QTableWidget*>("groupTable");
              table->selectRow(table->findItems("STUDY", Qt::MatchExactly).front()->row());
              press("reorderButton");
          },
          [&] {
              ASSERT_EQ(QApplication::activeModalWidget()->objectName(), QStringLiteral("CGroupReorderDlg"));
              press("reverseButton");
          },
          [&] { press("okButton"); }, [&] { press("okButton"); }});
    EXPECT_EQ(membersOf(L"STUDY"), "15C 15A");
}

TEST_F(GroupWorkbench, ExplodeGivesUpItsRowAndTheNextOnesStayThemselves) {
    play({[this] { submit("GROUP"); },
          [] {
              auto* dialog = QApplication::activeModalWidget();
              auto* table = dialog->findChild<QTableWidget*>("groupTable");
              const auto click = [&](const char* name) { dialog->findChild<QPushButton*>(name)->click(); };
              const int row = table->findItems("STUDY", Qt::MatchExactly).front()->row();
              ASSERT_GT(row, 0);
              const QString before = table->item(row - 1, 0)->text();
              table->selectRow(row - 1);
              click("explodeButton");
              EXPECT_TRUE(table->findItems(before, Qt::MatchExactly).isEmpty());
              EXPECT_TRUE(table->selectedItems().isEmpty());
              table->selectRow(row - 1);
              dialog->findChild<QLineEdit*>("descriptionEdit")->setText("Where one works");
              click("descriptionButton");
              click("okButton");
          }});
    const auto groups = odrxCast<OdDbDictionary>(drawing().getGroupDictionaryId().safeOpenObject());
    const auto study = odrxCast<OdDbGroup>(groups->getAt(L"STUDY", OdDb::kForRead));
    EXPECT_EQ(study->description(), OdString(L"Where one works"));
}

TEST_F(GroupWorkbench, TableOfTheDialogHasRoomForFiveRowsInBothThemes) {
    for (const char* theme : {"Dark", "Light"}) {
        enter({"THEME", theme});
        play({[this] { submit("GROUP"); },
              [] {
                  auto* table = QApplication::activeModalWidget()->findChild<QTableWidget*>("groupTable");
                  EXPECT_GE(table->viewport()->height(), 5 * table->rowHeight(0));
                  QApplication::activeModalWidget()->findChild<QPushButton*>("okButton")->click();
              }});
    }
}

TEST_F(GroupWorkbench, WhatACommandLeavesHighlightedGoesOffWhenItEnds) {
    int atThePrompt = -1;
    play({[this] { submit("SELECT"); }, [this] { submit(desk); }, [this] { submit(""); },
          [this] { submit("GROUPEDIT"); },
          [&] {
              atThePrompt = highlighted();
              submit("REName");
          },
          [this] { submit("BATHROOM"); }});
    EXPECT_EQ(atThePrompt, 2);
    EXPECT_EQ(membersOf(L"STUDY"), "15A 15C"); // the name was taken
    EXPECT_EQ(highlighted(), 0);
}

TEST_F(GroupWorkbench, GroupSelectionAsksWhenNothingIsSelected) {
    enter({"GROUPSELECTION", bed, ""});
    EXPECT_EQ(membersOf(L"Group1"), bed);
    enter({"UNDO"});
    enter({"GROUPSELECTION", ""});
    EXPECT_EQ(membersOf(L"Group1"), "none");
    EXPECT_EQ(lastLine(), QStringLiteral("Nothing was changed."));
}

TEST_F(GroupWorkbench, ReasonOfAGroupThatWasNotMadeIsTold) {
    enter({"SELECT", bed, ""});
    drawing()
        .getOdDbObjectId(OdDbHandle(OdString(bed, CP_UTF8)))
        .safeOpenObject(OdDb::kForWrite)
        ->erase(true);
    enter({"GROUPSELECTION"});
    EXPECT_EQ(membersOf(L"Group1"), "none");
    EXPECT_TRUE(wasPrinted("The group was not made: Object was erased."));
    EXPECT_EQ(lastLine(), QStringLiteral("Nothing was changed."));
}

TEST_F(GroupWorkbench, ListNamesTheGroupsOfEachObjectInTheirOrder) {
    enter({"SELECT", desk, bed, "", "GROUPSELECTION", "SELECT", bed, desk, "", "LIST"});
    EXPECT_TRUE(wasPrinted("    in group STUDY, Group1"));
    const QStringList lines = transcript().filter(QStringLiteral("in group"));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].endsWith(QStringLiteral("Group1")));
    EXPECT_EQ(lines[1], QStringLiteral("    in group STUDY, Group1"));
}

TEST_F(GroupWorkbench, EveryCommandSaysThatItNeedsADrawing) {
    while (documents().currentOne())
        enter({"CLOSE"});
    for (const char* command :
         {"GROUP", "-GROUP", "GROUPEDIT", "GROUPCREATE", "GROUPSELECTION", "UNGROUP", "GROUPREMOVE"}) {
        enter({command});
        EXPECT_EQ(lastLine(), QStringLiteral("No drawing is open.")) << command;
    }
}

TEST_F(GroupWorkbench, MenuOfARightClickOffersUngroupOnlyForOneWholeGroup) {
    workbench::Canvas& canvas = bench->window()->drawingArea();
    const auto isOffered = [&](const OdDbObjectIdArray& ids) {
        document().editor().clearSelection();
        document().editor().add(ids);
        QTest::mouseClick(&canvas, Qt::RightButton, {}, QPoint(5, 5));
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) {
            ADD_FAILURE() << "no menu";
            return false;
        }
        const bool offered = menu->findChild<QAction*>("ungroupMenuAction")->isEnabled();
        EXPECT_EQ(menu->findChild<QAction*>("groupeditMenuAction")->isEnabled(), offered);
        EXPECT_TRUE(menu->findChild<QAction*>("groupcreateMenuAction")->isEnabled());
        menu->close();
        return offered;
    };
    const auto id = [this](const char* handle) {
        return drawing().getOdDbObjectId(OdDbHandle(OdString(handle, CP_UTF8)));
    };
    EXPECT_TRUE(isOffered({id(desk), id(chair)}));
    EXPECT_FALSE(isOffered({id(desk)}));
    EXPECT_FALSE(isOffered({}));
}

TEST_F(GroupWorkbench, ACancelledListOfGroupsIsToldInWordsOfTheUser) {
    play({[this] { submit("-GROUP"); }, [this] { submit("?"); }, [this] { bench->console().escape(); }});
    EXPECT_TRUE(transcript().contains("No groups are listed: the question was cancelled."))
        << transcript().join('\n').toStdString();
}
