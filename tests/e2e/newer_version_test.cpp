// A drawing of the oldest version with a group in it: what SAVE asks, leaves out and keeps.
#include "sdk/db/newer_version.h"
#include "tests/e2e/drawing_fixture.h"

#include <QFile>
#include <QMessageBox>
#include <QPushButton>

namespace {

struct NewerVersionTest : DrawingFixture {
    NewerVersionTest() : old(root.filePath("old.dxf")) {
        QFile file(old);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        enter({"CLOSE", "OPEN", qPrintable(old)});
        addGroup();
    }
    void addGroup() {
        const OdDbDatabasePtr drawing = document().database();
        const auto groups =
            odrxCast<OdDbDictionary>(drawing->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
        const OdDbGroupPtr group(new OdDbGroup);
        groups->setAt(L"G", group.get());
        group->append(entities());
    }
    QString title() { return bench->window()->windowTitle(); }
    static QByteArray bytesOf(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static bool isNewerWithGroup(const QString& path) {
        const OdDbDatabasePtr read = OdDbDatabase::readFile(hostqt::odString(path));
        const auto groups = odrxQuery<OdDbDictionary>(read->getGroupDictionaryId().openObject().get());
        return read->versionName() == OdString(L"AC1027") && !groups.isNull() && groups->has(L"G");
    }
    const QByteArray text = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1009\n9\n$SNAPMODE\n70\n1\n0\nENDSEC\n"
                            "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0.0\n20\n0.0\n11\n3.0\n21\n4.0\n"
                            "0\nENDSEC\n0\nEOF\n";
    const QString old;
};

TEST_F(NewerVersionTest, NoLeavesTheFileAndTheDrawingAsTheyWere) {
    for (const char* answer : {"No", ""}) {
        enter({"SAVE", answer});
        EXPECT_EQ(bytesOf(old), text);
        EXPECT_EQ(title(), "old.dxf* - Workbench");
    }
    EXPECT_TRUE(odDbNeedsNewerVersion(*document().database()));
}

TEST_F(NewerVersionTest, YesSavesANewerDrawingAndOpensItInPlaceOfTheOldOne) {
    enter({"SAVE", "Yes"});
    EXPECT_TRUE(isNewerWithGroup(old));
    EXPECT_EQ(title(), "old.dxf - Workbench");
    EXPECT_EQ(document().database()->versionName(), OdString(L"AC1027"));
    EXPECT_EQ(entities().size(), 1u);
    EXPECT_EQ(lastLine(), "Saved as " + old + ".");
    EXPECT_EQ(static_cast<standin::DocumentManager*>(HostDocManager())->all().size(), 1u);
    document().database()->startUndoRecord();
    entities()[0].safeOpenObject(OdDb::kForWrite)->erase();
    enter({"SAVE"}); // asks nothing any more
    EXPECT_EQ(title(), "old.dxf - Workbench");
}

TEST_F(NewerVersionTest, TheStepsBeforeItAreGoneAndThatIsSaid) {
    enter({"SAVE", "Yes"});
    EXPECT_EQ(
        transcript().filter("old.dxf is a new drawing: the steps before it can't be undone any more.").size(),
        1);
    enter({"UNDO"});
    EXPECT_EQ(lastLine(), "There is nothing to undo.");
}

TEST_F(NewerVersionTest, WhatIsLeftOutIsSaid) {
    enter({"SAVE", "Yes"});
    EXPECT_EQ(transcript().filter("leaves out").size(), 1);
    EXPECT_EQ(transcript().filter("the header value $SNAPMODE").size(), 1);
}

TEST_F(NewerVersionTest, TheFormerFileIsKeptInTheFileHistory) {
    enter({"SAVE", "Yes"});
    enter({"VERSIONS", "1"});
    EXPECT_EQ(document().database()->versionName(), OdString(L"AC1009"));
}

TEST_F(NewerVersionTest, SaveAsWritesTheNewerDrawingElsewhere) {
    const QString copy = root.filePath("new.dxf");
    enter({"SAVEAS", qPrintable(copy), "Yes"});
    EXPECT_EQ(bytesOf(old), text);
    EXPECT_TRUE(isNewerWithGroup(copy));
    EXPECT_EQ(title(), "new.dxf - Workbench");
}

TEST_F(NewerVersionTest, CloseClosesTheNewerDrawing) {
    enter({"CLOSE", "Yes", "Yes"});
    EXPECT_TRUE(isNewerWithGroup(old));
    EXPECT_EQ(title(), "Workbench");
}

TEST_F(NewerVersionTest, AFileThatCannotBeWrittenLeavesTheOldDrawingOpen) {
    enter({"SAVEAS", qPrintable(root.filePath("nowhere/new.dxf")), "Yes"});
    EXPECT_EQ(title(), "old.dxf* - Workbench");
    EXPECT_TRUE(odDbNeedsNewerVersion(*document().database()));
}

TEST_F(NewerVersionTest, ABoxAsksInTheWindow) {
    enter({"FILEDIA", "1"});
    for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
        play({[this] { submit("SAVE"); },
              [button] {
                  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                  ASSERT_NE(box, nullptr);
                  EXPECT_EQ(box->objectName(), "newerBox");
                  EXPECT_EQ(box->property("textFormat").toInt(), int(Qt::PlainText));
                  EXPECT_TRUE(box->informativeText().contains("$SNAPMODE"));
                  box->button(button)->click();
              }});
        EXPECT_EQ(bytesOf(old) == text, button == QMessageBox::No);
    }
    EXPECT_TRUE(isNewerWithGroup(old));
}

} // namespace
