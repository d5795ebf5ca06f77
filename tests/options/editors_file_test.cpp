// The file rows of the option tree: filters, the choice of files, and what is accepted when typed.
#include "host/std_dirs.h"
#include "options/kinds/file_filters.h"
#include "tests/options/options_fixture.h"
#include "tests/support/file_dialog_driver.h"
#include "tests/support/tool_tip_text.h"

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QStandardPaths>

namespace {

// The host's standard directories: one folder for each key that the test names.
class Directories : public CKWUnknownImpl<IStdDirs> {
public:
    bool GetDir(const char* key, tagKWVARIANT* out, int flag) override {
        asked << QString(key);
        EXPECT_EQ(flag, 1);
        presetWide = out->vt == kVtWideString;
        const auto found = folders.find(key);
        if (found == folders.end())
            return false;
        KWVariantInit(out);
        CKWVariant value;
        if (narrow)
            value = hostqt::qString(found->second).toLocal8Bit().constData();
        else
            value = found->second;
        KWVariantCopy(out, value);
        return true;
    }
    bool GetDirList(const char*, CKWVariant*) override { return false; }
    bool SetDirList(const char*, const CKWVariant&) override { return false; }

    std::map<std::string, CXStringW> folders;
    QStringList asked;
    bool presetWide = false;
    bool narrow = false;
};

// Answers IStdDirs beside the services of the fixture host.
class HubWithDirectories : public CKWUnknownImpl<IKWUnknown> {
public:
    HubWithDirectories(IKWUnknown* wrapped, Directories* offered)
        : inner(Ref<IKWUnknown>::share(wrapped)), directories(Ref<Directories>::share(offered)) {}

protected:
    int internalQueryInterface(const std::type_info& type, void** out) override {
        return directories && type == typeid(IStdDirs) ? directories->QueryInterface(type, out)
                                                       : inner->QueryInterface(type, out);
    }

private:
    Ref<IKWUnknown> inner;
    Ref<Directories> directories;
};

QString desktop() { return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation); }

class FileEditor : public OptionsFixture {
protected:
    void SetUp() override {
        directories = Ref<Directories>::share(new Directories);
        directories->folders["TemplatesDir"] = hostqt::cxStringW(folder.path());
        directories->folders["AppDataDir"] = hostqt::cxStringW(folder.path());
        hub = Ref<HubWithDirectories>::share(new HubWithDirectories(host.application(), directories.get()));
        theOnlyIApp = hub.get();
        for (const char* name : {"/one.dwt", "/two.DWT", "/wrong.txt"}) {
            QFile file(folder.path() + name);
            ASSERT_TRUE(file.open(QFile::WriteOnly));
        }
    }
    QLineEdit* addAndOpen(const QString& value, int id = 0x195C5, const wchar_t* type = L"EditFile") {
        store("S", "File", hostqt::cxStringW(value));
        node("File").type(type).profile("S", "File").set("ID", id);
        open();
        return edit();
    }
    QLineEdit* edit() { return editor<QLineEdit>("File"); }
    QAction* browse() { return edit()->actions().value(0); }
    void typeAndReturn(const QString& text) {
        edit()->setText(text);
        QTest::keyClick(edit(), Qt::Key_Return);
    }
    QString inFolder(const char* name) { return folder.path() + "/" + name; }
    static QString backslashes(QString path) { return path.replace('/', '\\'); }
    static QString refusal(const QString& file) {
        return "\"" + file + "\" is not added because of wrong extension.";
    }

    QTemporaryDir folder;
    Ref<Directories> directories;
    Ref<HubWithDirectories> hub;
    QString filter;
    QStringList extensions;
};

TEST_F(FileEditor, TheThreeKindsHaveTheirFolderFilterAndExtension) {
    directories->folders["AppDataDir"] = CXStringW(L"/data");
    EXPECT_EQ(fileDialogSetup(0x195C5, &filter, &extensions), folder.path());
    EXPECT_EQ(filter, "CAD Files (*.dwt)");
    EXPECT_EQ(extensions, QStringList(".dwt"));
    EXPECT_TRUE(directories->presetWide);
    EXPECT_EQ(fileDialogSetup(0x195C6, &filter, &extensions), folder.path());
    EXPECT_EQ(filter, "CAD Files (*.dws)");
    EXPECT_EQ(extensions, QStringList(".dws"));
    EXPECT_EQ(fileDialogSetup(0x195C7, &filter, &extensions), "/data");
    EXPECT_EQ(filter, "Log Files (*.log)");
    EXPECT_EQ(extensions, QStringList(".log"));
    EXPECT_EQ(directories->asked, QStringList({"TemplatesDir", "TemplatesDir", "AppDataDir"}));
}

TEST_F(FileEditor, ADirectoryMayComeAsNarrowText) {
    directories->narrow = true;
    EXPECT_EQ(fileDialogSetup(0x195C5, &filter, &extensions), folder.path());
}

TEST_F(FileEditor, AnotherIdLeavesFilterAndExtensionsEmpty) {
    EXPECT_EQ(fileDialogSetup(-1, &filter, &extensions), desktop());
    EXPECT_EQ(filter, "");
    EXPECT_TRUE(extensions.isEmpty());
}

TEST_F(FileEditor, AMissingDirectoryEntryLeavesTheDesktopWithTheFilter) {
    directories->folders.clear();
    EXPECT_EQ(fileDialogSetup(0x195C5, &filter, &extensions), desktop());
    EXPECT_EQ(extensions, QStringList(".dwt"));
}

TEST_F(FileEditor, WithoutStandardDirectoriesNoExtensionIsAllowed) {
    theOnlyIApp = host.application();
    host.withhold(typeid(IStdDirs));
    EXPECT_EQ(fileDialogSetup(0x195C5, &filter, &extensions), desktop());
    EXPECT_EQ(filter, "");
    EXPECT_TRUE(extensions.isEmpty());
}

TEST_F(FileEditor, FilesAreKeptByExtensionInAnyCaseAndJoined) {
    EXPECT_EQ(filterByExtension({"a.dwt", "b.DWT", "c.txt"}, {".dwt"}), "a.dwt;b.DWT");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].kind, standin::MessageKind::Critical);
    EXPECT_EQ(host.messages[0].title, "Error");
    EXPECT_EQ(host.messages[0].text, refusal("c.txt"));
    EXPECT_EQ(host.messages[0].buttons, EV_MB_OK);
}

TEST_F(FileEditor, WithoutExtensionsEachFileIsRefusedWithAMessage) {
    EXPECT_EQ(filterByExtension({"a.dwt", "b.log"}, {}), "");
    EXPECT_EQ(host.messages.size(), 2u);
}

TEST_F(FileEditor, ShowsTheStoredValueElseTheDefault) {
    addAndOpen("/x/a.dwt");
    EXPECT_EQ(edit()->text(), "/x/a.dwt");
    EXPECT_EQ(edit()->toolTip(), "/x/a.dwt");
    EXPECT_EQ(edit()->cursorPosition(), 0);
    EXPECT_EQ(item("File")->textValue, "/x/a.dwt");
    EXPECT_EQ(item("File")->buttonMask, unsigned(kMaskModify));
}

TEST_F(FileEditor, TheBrowseActionGoesWithItsField) {
    addAndOpen("");
    const QPointer<QAction> action = browse();
    ASSERT_TRUE(action);
    EXPECT_EQ(action->objectName(), "browseAction");
    EXPECT_EQ(action->parent(), nullptr);
    dialog.reset();
    EXPECT_FALSE(action);
}

TEST_F(FileEditor, SeveralFilesMayBePickedAndTheirSlashesAreTurned) {
    addAndOpen("");
    FileDialogDriver user("\"one.dwt\" \"two.DWT\"");
    browse()->trigger();
    ASSERT_TRUE(user.shown);
    EXPECT_EQ(user.directory, folder.path());
    EXPECT_EQ(user.filters, QStringList("CAD Files (*.dwt)"));
    EXPECT_EQ(user.mode, QFileDialog::ExistingFiles);
    EXPECT_EQ(user.parentWidget, dialog.get());
    const QString expected = backslashes(inFolder("one.dwt") + ";" + inFolder("two.DWT"));
    EXPECT_EQ(edit()->text(), expected);
    EXPECT_EQ(edit()->toolTip(), expected);
    EXPECT_EQ(item("File")->textValue, expected);
    apply();
    EXPECT_EQ(storedText("S", "File"), expected);
}

TEST_F(FileEditor, AfterAPickTheFieldHasTheFocusAndOkStoresIt) {
    store("S", "File", CXStringW(L"old.dwt"));
    node("File").type(L"EditFile").profile("S", "File").set("ID", 0x195C5);
    show();
    dialog->tree->setCurrentItem(dialog->tree->topLevelItem(0));
    FileDialogDriver user("one.dwt");
    browse()->trigger();
    comeBack();
    EXPECT_TRUE(waitUntil([this] { return edit()->hasFocus(); }));
    EXPECT_EQ(dialog->tree->currentItem(), item("File"));
    QTest::mouseClick(dialog->okButton, Qt::LeftButton);
    EXPECT_EQ(storedText("S", "File"), backslashes(inFolder("one.dwt")));
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(FileEditor, ACancelledPickLeavesTheFocusWhereItWas) {
    node("File").type(L"EditFile").set("ID", 0x195C5);
    show();
    FileDialogDriver user;
    browse()->trigger();
    EXPECT_TRUE(user.shown);
    comeBack();
    EXPECT_TRUE(waitUntil([this] { return dialog->okButton->hasFocus(); }));
    EXPECT_FALSE(edit()->hasFocus());
}

TEST_F(FileEditor, TheToolTipShowsTheVeryCharactersOfTheFiles) {
    addAndOpen("/<b>a</b>.dwt");
    EXPECT_EQ(toolTipOf(*edit()), "/<b>a</b>.dwt");
    typeAndReturn("<i>b</i>.dwt");
    EXPECT_EQ(toolTipOf(*edit()), "<i>b<\\i>.dwt");
}

TEST_F(FileEditor, CancellingThePickChangesNothing) {
    addAndOpen("old.dwt");
    FileDialogDriver user;
    browse()->trigger();
    ASSERT_TRUE(user.shown);
    EXPECT_EQ(edit()->text(), "old.dwt");
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(FileEditor, WithoutAStartFolderThePickStartsAtTheFileItself) {
    directories->folders["TemplatesDir"] = CXStringW(L"");
    addAndOpen(inFolder("one.dwt"));
    FileDialogDriver user;
    browse()->trigger();
    EXPECT_EQ(user.directory, folder.path());
}

TEST_F(FileEditor, TypedFilesAreTakenWithTheirSlashesTurnedAndEmptyPartsDropped) {
    addAndOpen("");
    typeAndReturn(";/a/b.dwt;;c.DWT;");
    EXPECT_EQ(edit()->text(), "\\a\\b.dwt;c.DWT");
    EXPECT_EQ(edit()->toolTip(), "\\a\\b.dwt;c.DWT");
    EXPECT_EQ(item("File")->textValue, "\\a\\b.dwt;c.DWT");
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(FileEditor, OfTypedFilesTheWrongOnesAreRefusedAndTheOthersKept) {
    addAndOpen("");
    typeAndReturn("a.dwt;b.txt");
    EXPECT_EQ(edit()->text(), "a.dwt");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, refusal("b.txt"));
}

TEST_F(FileEditor, AWrongExtensionAlonePutsTheLastTextBack) {
    addAndOpen("");
    typeAndReturn("a.dwt");
    typeAndReturn("b.txt");
    EXPECT_EQ(edit()->text(), "a.dwt");
    EXPECT_EQ(item("File")->textValue, "a.dwt");
    EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(FileEditor, ReturnInTheFocusedFieldRefusesOnceThoughTheEditEndsTwice) {
    store("S", "File", CXStringW(L"first.dwt"));
    node("File").type(L"EditFile").profile("S", "File").set("ID", 0x195C5);
    show();
    dialog->tree->setCurrentItem(item("File"));
    edit()->setFocus();
    ASSERT_TRUE(waitUntil([this] { return edit()->hasFocus(); }));
    typeAndReturn("b.txt");
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(edit()->text(), "first.dwt");
}

TEST_F(FileEditor, TypedFilesWaitForTheEndOfTheEdit) {
    addAndOpen("old.dwt");
    edit()->setText("new.dwt");
    EXPECT_EQ(item("File")->textValue, "old.dwt");
    QTest::keyClick(edit(), Qt::Key_Return);
    EXPECT_EQ(item("File")->textValue, "new.dwt");
}

TEST_F(FileEditor, AnEmptiedFieldIsRefusedSilently) {
    addAndOpen("first.dwt");
    typeAndReturn("");
    EXPECT_EQ(edit()->text(), "first.dwt");
    EXPECT_EQ(item("File")->textValue, "first.dwt");
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(FileEditor, APickedTextIsTheOneThatARefusalPutsBack) {
    addAndOpen("first.dwt");
    FileDialogDriver user("one.dwt");
    browse()->trigger();
    typeAndReturn("x.txt");
    EXPECT_EQ(edit()->text(), backslashes(inFolder("one.dwt")));
}

TEST_F(FileEditor, TheRowOfSeveralFilesIsTheSame) {
    addAndOpen("", 0x195C6, L"EditMultiFile");
    typeAndReturn("a.dws;b.dws");
    EXPECT_EQ(item("File")->textValue, "a.dws;b.dws");
}

TEST_F(FileEditor, ARowWithoutOneOfTheThreeIdsTakesNoFile) {
    addAndOpen("old.dwt", 7);
    typeAndReturn("new.dwt");
    EXPECT_EQ(edit()->text(), "old.dwt");
    EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(FileEditor, TheBrowsePictureFollowsTheTheme) {
    addAndOpen("");
    const QImage dark = browse()->icon().pixmap(16).toImage();
    host.setTheme(1);
    EXPECT_NE(browse()->icon().pixmap(16).toImage(), dark);
}

} // namespace
