// External references in the real workbench: attached by the menu, listed, read anew, missing, taken back.
#include "tests/e2e/workbench_fixture.h"

#include "host/text.h"
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/xref_man.h"
#include "standin/documents/document_manager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolBar>

namespace {

struct AttachTest : WorkbenchFixture {
    AttachTest() { enter({"FILEDIA", "0"}); } // files are asked for on the console; ~ calls for the dialogs
    QString inFolder(const QString& file) const { return drawings.filePath(file); }
    // A drawing with one line of that length.
    QString write(const QString& file, double length = 10) const {
        const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
        OdDbLinePtr line(new OdDbLine);
        line->setEndPoint({length, 0, 0});
        odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite))
            ->appendOdDbEntity(line.get());
        drawing->writeFile(hostqt::odString(inFolder(file)));
        return inFolder(file);
    }
    static OdDbDatabasePtr drawing() { return HostDocManager()->currentDocument()->database(); }
    static OdDbBlockTableRecordPtr block(const wchar_t* name) {
        const auto blocks = odrxCast<OdDbBlockTable>(drawing()->getBlockTableId().safeOpenObject());
        return odrxCast<OdDbBlockTableRecord>(blocks->getAt(name, OdDb::kForRead));
    }
    template <class T> static T* control(const char* name) {
        QWidget* dialog = QApplication::activeModalWidget();
        T* found = dialog ? dialog->findChild<T*>(QString::fromLatin1(name)) : nullptr;
        if (!found)
            throw std::invalid_argument(name);
        return found;
    }
    // Later, so that what the click starts may wait for the next step.
    static void click(const char* name) {
        QMetaObject::invokeMethod(control<QAbstractButton>(name), &QAbstractButton::click,
                                  Qt::QueuedConnection);
    }
    using Steps = std::vector<std::function<void()>>;
    std::function<void()> typing(const QString& text) {
        return [this, text] { submit(text); };
    }
    std::function<void()> choosing(const QString& path) {
        return [this, path] {
            filters = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget()).nameFilters();
            control<QLineEdit>("fileNameEdit")->setText(path);
            control<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Open)->click();
        };
    }
    static std::function<void()> clicking(const char* name) {
        return [name] { click(name); };
    }
    void openSite() { enter({"SAVEAS", qPrintable(inFolder("site.dxf"))}); }
    void attachPart() {
        play({typing("XATTACH"), typing("~"), choosing(write("part.dxf")), clicking("okButton"),
              typing("3,4")});
    }
    bool printed(const QString& line) { return transcript().contains(line); }

    QTemporaryDir drawings;
    QStringList filters;
};

// Strings without a letter go from the workbench to the module, which frees them.
TEST_F(AttachTest, ADrawingThatWasNeverSavedHasNoFolderForARelativePath) {
    play({typing("XATTACH"), typing("~"), choosing(write("part.dxf")),
          [] {
              auto* list = control<QComboBox>("pathTypeCombo");
              QTimer::singleShot(0, list, [list] { QTest::keyClick(list, Qt::Key_Home); });
          },
          [] { dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget()).accept(); },
          clicking("okButton"), typing("3,4")});
    ASSERT_FALSE(block(L"part").isNull());
    EXPECT_EQ(hostqt::qString(block(L"part")->pathName()), inFolder("part.dxf"));
}

TEST_F(AttachTest, MenuAttachesAndUndoTakesItBackInOneStep) {
    const std::string before = drawing()->writeBytes();
    play({[this] { action("External reference...")->trigger(); }, typing("~"), choosing(write("part.dxf")),
          clicking("okButton"), typing("3,4")});
    ASSERT_FALSE(block(L"part").isNull());
    EXPECT_FALSE(block(L"part")->xrefDatabase().isNull());
    enter({"UNDO"});
    EXPECT_EQ(drawing()->writeBytes(), before);
}

TEST_F(AttachTest, FileDialogOfTheShippedCatalogueListsDrawings) {
    play({typing("XATTACH"), typing("~"), choosing(write("part.dxf")), clicking("cancelButton")});
    EXPECT_EQ(filters, QStringList({"Drawings (*.dxf)", "All files (*)"}));
}

TEST_F(AttachTest, ToolBarAttaches) {
    const auto buttons = part<QToolBar>("toolBar")->actions();
    const auto isAttach = [](const QAction* button) { return button->objectName() == "xattachAction"; };
    const auto found = std::find_if(buttons.begin(), buttons.end(), isAttach);
    ASSERT_NE(found, buttons.end());
    EXPECT_FALSE((*found)->icon().isNull());
    play({[found] { (*found)->trigger(); }, typing("~"), choosing(write("part.dxf")), clicking("okButton"),
          typing("3,4")});
    EXPECT_FALSE(block(L"part").isNull());
}

TEST_F(AttachTest, FilesArePromptedForWhenFilediaIsOff) {
    openSite();
    write("part.dxf");
    write("other.dxf");
    enter({"XATTACH", "part.dxf", "3,4"}); // beside the current drawing
    ASSERT_FALSE(block(L"part").isNull());
    EXPECT_FALSE(block(L"part")->xrefDatabase().isNull());
    enter({"UNDO"});
    EXPECT_TRUE(block(L"part").isNull());
    enter({"XATTACH", qPrintable(inFolder("part.dxf") + ";\"" + inFolder("other.dxf") + '"'), "3,4", "20,4"});
    EXPECT_TRUE(printed("Placing other.dxf (2 of 2)."));
    EXPECT_FALSE(block(L"part").isNull());
    EXPECT_FALSE(block(L"other").isNull());
}

TEST_F(AttachTest, EnterOrEscapeAtThePromptForFilesAttachesNothing) {
    const std::string before = drawing()->writeBytes();
    enter({"XATTACH", ""});
    play({typing("XATTACH"), [this] { bench->console().escape(); }});
    EXPECT_EQ(drawing()->writeBytes(), before);
}

TEST_F(AttachTest, RelativePathOfASavedDrawingIsKept) {
    openSite();
    play({typing("XATTACH"), typing("~"), choosing(write("part.dxf")),
          [] {
              auto* list = control<QComboBox>("pathTypeCombo");
              list->setFocus();
              QTest::keyClick(list, Qt::Key_Up);
              EXPECT_EQ(control<QLineEdit>("savedPathEdit")->text(), "part.dxf");
              click("okButton");
          },
          typing("3,4")});
    EXPECT_EQ(block(L"part")->pathName(), OdString(L"part.dxf"));
    EXPECT_FALSE(block(L"part")->xrefDatabase().isNull());
}

TEST_F(AttachTest, SettingsAreThereAgainInTheNextRun) {
    play({typing("XATTACH"), typing("~"), choosing(write("part.dxf")),
          [] {
              click("overlayRadio");
              click("autoZoomCheck");
              click("okButton");
          },
          typing("3,4")});
    restart();
    bool overlay = false, zoom = false, uniform = true;
    play({typing("XATTACH"), typing("~"), choosing(write("part.dxf")), [&] {
              overlay = control<QRadioButton>("overlayRadio")->isChecked();
              zoom = control<QCheckBox>("autoZoomCheck")->isChecked();
              uniform = control<QCheckBox>("uniformScaleCheck")->isChecked();
              click("cancelButton");
          }});
    EXPECT_TRUE(overlay);
    EXPECT_TRUE(zoom);
    EXPECT_FALSE(uniform);
}

TEST_F(AttachTest, BadFileIsRefusedBeforeTheDialogInABoxAndOnTheConsoleWithItsPath) {
    QFile file(inFolder("bad.dxf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no drawing");
    file.close();
    QString shown;
    play({typing("XATTACH"), typing("~"), choosing(inFolder("bad.dxf")), [&] {
              auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
              ASSERT_NE(box, nullptr);
              shown = box->text();
              box->accept();
          }});
    EXPECT_EQ(shown, inFolder("bad.dxf") + ": Drawing file is not valid.");
    EXPECT_TRUE(printed(shown));
    EXPECT_FALSE(drawing()->isModified());
    EXPECT_EQ(drawing()->numActiveTransactions(), 0);
}

TEST_F(AttachTest, FileDialogStartsBesideTheDrawingAndThenWhereItWasLast) {
    openSite();
    QTemporaryDir lib;
    QFile::copy(write("part.dxf"), lib.filePath("lib.dxf"));
    QStringList folders;
    const auto noting = [&] {
        folders << dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget()).directory().path();
    };
    const auto choosingInLib = [&] {
        noting();
        choosing(lib.filePath("lib.dxf"))();
    };
    play({typing("XATTACH"), typing("~"), choosingInLib, clicking("cancelButton"), typing("XATTACH"),
          typing("~"), noting});
    EXPECT_EQ(folders, QStringList({drawings.path(), lib.path()}));
}

TEST_F(AttachTest, RefusedAnswersAreToldOnTheConsole) {
    play({typing("XATTACH"), typing("~"), choosing(write("part.dxf")),
          [] {
              click("scaleOnScreenCheck");
              click("okButton");
          },
          typing("3,4"), typing("abc")});
    EXPECT_TRUE(printed("X scale factor or 2D corner point required."));
}

TEST_F(AttachTest, ListTellsNameStatusAndPaths) {
    enter({"XREFS"});
    EXPECT_EQ(lastLine(), "The drawing has no external references.");
    attachPart();
    enter({"XREFS"});
    EXPECT_TRUE(printed("part: attachment, loaded"));
    EXPECT_TRUE(printed("    saved path  " + inFolder("part.dxf")));
    EXPECT_TRUE(printed("    found at    " + inFolder("part.dxf")));
}

TEST_F(AttachTest, ReloadReadsTheFileAnew) {
    attachPart();
    write("part.dxf", 500);
    enter({"XREFS", "other"});
    EXPECT_EQ(lastLine(), "There is no reference other.");
    enter({"XREFS", "Part"});
    EXPECT_EQ(lastLine(), "part is read anew from " + inFolder("part.dxf") + ".");
    const auto space =
        odrxCast<OdDbBlockTableRecord>(block(L"part")->xrefDatabase()->getModelSpaceId().safeOpenObject());
    EXPECT_EQ(space->extents().maxPoint().x, 500);
}

TEST_F(AttachTest, MissingReferenceIsToldWhenOpeningAndLoadedWhenItIsBack) {
    openSite();
    attachPart();
    enter({"SAVE", "CLOSE"});
    QFile::rename(inFolder("part.dxf"), inFolder("away"));
    enter({"OPEN", qPrintable(inFolder("site.dxf"))});
    EXPECT_TRUE(printed("Reference part: " + inFolder("part.dxf") + " is not found."));
    enter({"XREFS", "*"});
    EXPECT_TRUE(printed("part: attachment, not found"));
    EXPECT_TRUE(printed("    found at    nowhere"));
    EXPECT_TRUE(lastLine().startsWith("part can't be loaded from " + inFolder("part.dxf") + ": "));
    QFile::rename(inFolder("away"), inFolder("part.dxf"));
    enter({"XREFS", "*"});
    EXPECT_EQ(lastLine(), "part is read anew from " + inFolder("part.dxf") + ".");
}

TEST_F(AttachTest, OpenedDrawingShowsItsReferencesUnchanged) {
    openSite();
    attachPart();
    enter({"SAVE", "CLOSE"});
    enter({"OPEN", qPrintable(inFolder("site.dxf"))});
    EXPECT_FALSE(block(L"part")->xrefDatabase().isNull());
    EXPECT_FALSE(drawing()->isModified());
}

TEST_F(AttachTest, SiteSampleShowsTheHouseAndThePart) {
    enter({"OPEN", SHIPPED_DATA_DIR "/samples/site.dxf", "XREFS"});
    EXPECT_TRUE(printed("house: attachment, loaded"));
    EXPECT_TRUE(printed("part: overlay, loaded"));
    EXPECT_TRUE(printed("    saved path  house.dxf"));
    EXPECT_FALSE(drawing()->isModified());
}

TEST_F(AttachTest, WithoutADrawingBothCommandsOnlySaySo) {
    enter({"CLOSE", "XATTACH"});
    EXPECT_EQ(lastLine(), "No drawing is open.");
    enter({"XREFS"});
    EXPECT_EQ(lastLine(), "No drawing is open.");
}

// The last of too many drawings, each of which refers to the next one.
TEST_F(AttachTest, ReferencesThatAreTooDeepAreToldWhenTheyAreAttached) {
    const int count = 67;
    for (int i = count; i-- > 0;) {
        const OdDbDatabasePtr chained = OdDbDatabase::createEmpty();
        if (i + 1 < count)
            OdDbXRefManExt::addNewXRefDefBlock(chained.get(), std::to_wstring(i + 1) + L".dxf", L"next",
                                               false);
        chained->writeFile(hostqt::odString(inFolder(QString::number(i) + ".dxf")));
    }
    const QString notice = "references are not loaded: a drawing loads no more than";
    enter({"NEW", "XATTACH", qPrintable(inFolder("0.dxf")), "0,0", "", "", ""});
    EXPECT_EQ(transcript().filter(notice).size(), 1) << "nothing is said when they are attached";
    enter({"XREFS", "*"});
    EXPECT_EQ(transcript().filter(notice).size(), 2) << "nothing is said when they are read anew";
}

} // namespace
