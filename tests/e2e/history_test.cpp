// The file history: what is kept on a save, what is asked, what the drawing properties show of it, and how a
// former version is opened.
#include "tests/e2e/workbench_fixture.h"

#include "sdk/db/database.h"
#include "sdk/db/summary_info.h"
#include "standin/documents/document_manager.h"

#include <QDir>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace {

struct HistoryTest : WorkbenchFixture {
    HistoryTest() { typeFileNames(); }
    static void typeFileNames() {
        const OdResBufPtr off = OdResBuf::newRb(OdResBuf::kDxfBool);
        off->setBool(false);
        HostDocManager()->varService()->setVar(L"FILEDIA", off.get(), nullptr, 0);
    }
    static void set(const char* key, int value) {
        const CKWVariant number(value, kVtInt);
        openChild(appService<IProfile>().get(), "FileHistory", 1)->setValue(key, &number);
    }
    static void change(const wchar_t* title) {
        const OdDbDatabasePtr drawing = HostDocManager()->currentDocument()->database();
        const OdDbDatabaseSummaryInfoPtr info = oddbGetSummaryInfo(drawing.get());
        info->setTitle(title);
        oddbPutSummaryInfo(info.get());
    }
    static QString title() {
        const OdDbDatabasePtr drawing = HostDocManager()->currentDocument()->database();
        return QString::fromStdWString(oddbGetSummaryInfo(drawing.get())->getTitle().wide());
    }
    // Saves as many times as there are titles; each save but the first leaves a version.
    void saveInTurn(std::initializer_list<const wchar_t*> titles) {
        for (const wchar_t* text : titles) {
            change(text);
            if (HostDocManager()->currentDocument()->fileName()[0])
                enter({"SAVE"});
            else
                play({[this] { submit("SAVE"); }, [this] { submit(path); }});
        }
    }
    // The text of a table of the drawing properties or of the dialog of versions.
    static QStringList column(const QTableWidget& table, int column) {
        QStringList texts;
        for (int row = 0; row < table.rowCount(); ++row)
            texts << (table.item(row, column) ? table.item(row, column)->text() : QStringLiteral("-"));
        return texts;
    }
    QStringList historyTab(int shownColumn) {
        QStringList texts;
        play({[this] { submit("DWGPROPS"); },
              [&] {
                  auto* page = QApplication::activeModalWidget()->findChild<QWidget*>("historyTab");
                  texts = column(*page->findChild<QTableWidget*>("table"), shownColumn);
              }});
        return texts;
    }
    QStringList files() const {
        QStringList found;
        const QDir history(root.filePath("history"));
        for (const QString& folder : history.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            found += QDir(history.filePath(folder)).entryList(QDir::Files);
        return found;
    }
    QTemporaryDir drawings;
    const QString path = drawings.filePath("house.dxf");
};

TEST_F(HistoryTest, EachSaveKeepsTheFormerFileAndTheTabShowsTheLatestFirst) {
    saveInTurn({L"1"});
    EXPECT_EQ(historyTab(1), QStringList({"-", "-", "-", "-", "-"}));
    saveInTurn({L"2", L"3"});
    EXPECT_EQ(files().size(), 2);
    EXPECT_EQ(historyTab(1), QStringList({"Saved", "Saved", "-", "-", "-"}));
    EXPECT_NE(historyTab(0).first(), "-");
}

TEST_F(HistoryTest, ReasonIsAskedForWhenItIsSetSo) {
    set("FILEHISTORYREASON", 1);
    saveInTurn({L"1"});
    change(L"2");
    play({[this] { submit("SAVE"); },
          [this] {
              EXPECT_EQ(bench->commands().prompt().trimmed().toStdString(),
                        "Reason for keeping the former version of house.dxf <Saved>:");
              submit("before the roof %1 <b>");
          }});
    change(L"3");
    play({[this] { submit("SAVE"); }, [this] { submit(""); }});
    change(L"4");
    play({[this] { submit("SAVE"); }, [this] { press(Qt::Key_Escape); }});
    EXPECT_EQ(historyTab(1).mid(0, 3), QStringList({"Saved", "Saved", "before the roof %1 <b>"}));
    EXPECT_EQ(files().size(), 3);
}

TEST_F(HistoryTest, SwitchedOffItKeepsNothing) {
    set("FILEHISTORY", 0);
    saveInTurn({L"1", L"2", L"3"});
    EXPECT_EQ(files(), QStringList());
    EXPECT_EQ(historyTab(1), QStringList({"-", "-", "-", "-", "-"}));
}

TEST_F(HistoryTest, MaximumIsHonouredAndTheOldestGo) {
    set("FILEHISTORYMAX", 2);
    saveInTurn({L"1", L"2", L"3", L"4", L"5"});
    EXPECT_EQ(files().size(), 2);
    EXPECT_EQ(historyTab(1), QStringList({"Saved", "Saved"}));
    play({[this] { submit("VERSIONS"); }, [this] { submit("2"); }});
    EXPECT_EQ(title(), "3");
}

TEST_F(HistoryTest, AVersionOpensAsADrawingWithoutANameSoThatTheHistoryStaysAsItIs) {
    saveInTurn({L"first", L"second", L"third"});
    const QStringList before = files();
    play({[this] { submit("VERSIONS"); }, [this] { submit("2"); }});
    EXPECT_EQ(title(), "first");
    EXPECT_STREQ(HostDocManager()->currentDocument()->fileName(), L"");
    EXPECT_TRUE(bench->window()->windowTitle().startsWith("house 20"));
    EXPECT_FALSE(HostDocManager()->currentDocument()->database()->isModified());
    change(L"other");
    const QString elsewhere = drawings.filePath("elsewhere.dxf");
    play({[this] { submit("SAVE"); }, [&] { submit(elsewhere); }});
    EXPECT_TRUE(QFileInfo::exists(elsewhere));
    EXPECT_EQ(files(), before);
    EXPECT_EQ(historyTab(1).first(), "-") << "the copy has a history of its own";
}

TEST_F(HistoryTest, AWrongNumberIsAskedForAgain) {
    saveInTurn({L"1", L"2"});
    play({[this] { submit("VERSIONS"); }, [this] { submit("7"); }, [this] { submit("x"); },
          [this] { submit(""); }});
    EXPECT_EQ(transcript().filter("Enter a number from 1 to 1.").size(), 2);
    EXPECT_EQ(title(), "2");
}

TEST_F(HistoryTest, WithoutVersionsOrDrawingItIsSaid) {
    enter({"VERSIONS"});
    EXPECT_EQ(lastLine(), "No former version of this drawing is kept.");
    enter({"CLOSE", "VERSIONS"});
    EXPECT_EQ(lastLine(), "No drawing is open.");
}

TEST_F(HistoryTest, ReplacingAnotherDrawingKeepsThatOne) {
    saveInTurn({L"old house"});
    play({[this] { submit("CLOSE"); }, [this] { submit("NEW"); }});
    EXPECT_TRUE(bench->window()->windowTitle().startsWith("Drawing"));
    change(L"new house");
    play({[this] { submit("SAVEAS"); }, [this] { submit(path); }, [this] { submit("Yes"); }});
    EXPECT_EQ(historyTab(1).first(), "Replaced by another drawing");
    play({[this] { submit("VERSIONS"); }, [this] { submit("1"); }});
    EXPECT_EQ(title(), "old house");
}

TEST_F(HistoryTest, AVanishedFolderIsToldOnTheNextSaveAndNothingIsLost) {
    saveInTurn({L"1", L"2"});
    ASSERT_TRUE(QDir(root.filePath("history")).removeRecursively());
    EXPECT_EQ(historyTab(1), QStringList({"-", "-", "-", "-", "-"}));
    play({[this] { submit("VERSIONS"); }, [this] { submit("1"); }});
    EXPECT_FALSE(transcript().filter("The file of this version is gone").isEmpty());
    saveInTurn({L"3"});
    EXPECT_FALSE(transcript().filter("The folder with the former versions of").isEmpty());
    EXPECT_EQ(historyTab(1).mid(0, 2), QStringList({"Saved", "-"}));
    EXPECT_EQ(OdDbDatabase::readFile(OdString(path.toStdWString()))->isModified(), false);
}

TEST_F(HistoryTest, WhatCannotBeKeptIsToldAndTheDrawingIsSavedAllTheSame) {
    saveInTurn({L"1"});
    QFile inTheWay(root.filePath("history"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    saveInTurn({L"2"});
    EXPECT_FALSE(transcript().filter("could not be kept").isEmpty());
    EXPECT_FALSE(HostDocManager()->currentDocument()->database()->isModified());
}

TEST_F(HistoryTest, VersionsAreThereAfterARestart) {
    saveInTurn({L"1", L"2"});
    restart();
    typeFileNames();
    play({[this] { submit("OPEN"); }, [this] { submit(path); }});
    EXPECT_EQ(historyTab(1).mid(0, 2), QStringList({"Saved", "-"}));
}

TEST_F(HistoryTest, DialogListsTheVersionsAndOpensTheChosenOne) {
    saveInTurn({L"1", L"2", L"3"});
    const OdResBufPtr on = OdResBuf::newRb(OdResBuf::kDxfBool);
    on->setBool(true);
    HostDocManager()->varService()->setVar(L"FILEDIA", on.get(), nullptr, 0);
    play({[this] { submit("VERSIONS"); },
          [] {
              auto* table = QApplication::activeModalWidget()->findChild<QTableWidget*>("versionsTable");
              EXPECT_EQ(column(*table, 2), QStringList({"Saved", "Saved"}));
              EXPECT_TRUE(table->item(0, 1)->text().contains("iB") ||
                          table->item(0, 1)->text().contains("B"));
              table->selectRow(1);
              QApplication::activeModalWidget()->findChild<QPushButton*>("openButton")->click();
          }});
    EXPECT_EQ(title(), "1");
    play({[this] { submit("VERSIONS"); },
          [] {
              const auto* dialog = QApplication::activeModalWidget();
              EXPECT_FALSE(dialog->findChild<QPushButton*>("openButton")->isEnabled());
              EXPECT_TRUE(dialog->findChild<QLabel*>("introLabel")->text().startsWith("No former version"));
          }});
}

TEST_F(HistoryTest, DialogAsksForTheReason) {
    set("FILEHISTORYREASON", 1);
    saveInTurn({L"1"});
    const OdResBufPtr on = OdResBuf::newRb(OdResBuf::kDxfBool);
    on->setBool(true);
    HostDocManager()->varService()->setVar(L"FILEDIA", on.get(), nullptr, 0);
    change(L"2");
    play({[this] { submit("SAVE"); },
          [] {
              auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
              ASSERT_NE(dialog, nullptr);
              EXPECT_EQ(dialog->labelText(), "&Why is the former version of house.dxf kept?");
              dialog->setTextValue("  the client wants a garden ");
              dialog->accept();
          }});
    EXPECT_EQ(historyTab(1).first(), "the client wants a garden");
}

} // namespace
