// The line edits of text and of a directory.
#include "tests/options/options_fixture.h"
#include "tests/support/file_dialog_driver.h"
#include "tests/support/tool_tip_text.h"

#include <QAction>
#include <QDir>
#include <QLineEdit>
#include <QStandardPaths>

namespace {

class TextEditor : public OptionsFixture {};

class DirectoryEditor : public OptionsFixture {
protected:
    void SetUp() override {
        QDir(folder.path()).mkdir("known");
        known = folder.path() + "/known";
    }
    QLineEdit* addAndOpen(const QString& value) {
        store("S", "Dir", hostqt::cxStringW(value));
        node("Dir").type(L"EditDir").profile("S", "Dir");
        open();
        return edit();
    }
    QLineEdit* edit() { return editor<QLineEdit>("Dir"); }
    QString lastValid() { return edit()->property("lastValidPath").toString(); }
    void typeAndReturn(const QString& text) {
        edit()->setText(text);
        QTest::keyClick(edit(), Qt::Key_Return);
    }
    QAction* browse() { return edit()->findChild<QAction*>() ? nullptr : edit()->actions().value(0); }

    QTemporaryDir folder;
    QString known;
};

TEST_F(TextEditor, ShowsTheTrimmedValueFromItsStart) {
    store("S", "A", CXString("  some text  "));
    node("A").type(L"Edit").profile("S", "A");
    node("B").type(L"Edit").profile("S", "B").set("Default", L"default");
    open();
    EXPECT_EQ(editor<QLineEdit>("A")->text(), "some text");
    EXPECT_EQ(editor<QLineEdit>("A")->cursorPosition(), 0);
    EXPECT_EQ(editor<QLineEdit>("A")->toolTip(), "some text");
    EXPECT_EQ(item("A")->textValue, "some text");
    EXPECT_EQ(item("A")->buttonMask, unsigned(kMaskModify));
    EXPECT_EQ(editor<QLineEdit>("B")->text(), "default");
}

TEST_F(TextEditor, AnEmptyTextInTheProfileGivesWayToTheDefaultButNotInAVariable) {
    store("S", "A", CXString(""));
    host.vars.set("VAR", L"");
    node("A").type(L"Edit").profile("S", "A").set("Default", L"default");
    node("B").type(L"Edit").variable("VAR").set("Default", L"default");
    open();
    EXPECT_EQ(editor<QLineEdit>("A")->text(), "default");
    EXPECT_EQ(editor<QLineEdit>("B")->text(), "");
}

TEST_F(TextEditor, TheItemAndTheToolTipFollowTheTrimmedText) {
    node("A").type(L"Edit");
    open();
    editor<QLineEdit>("A")->setText("  typed ");
    EXPECT_EQ(item("A")->textValue, "typed");
    EXPECT_EQ(editor<QLineEdit>("A")->toolTip(), "typed");
    EXPECT_EQ(editor<QLineEdit>("A")->text(), "  typed "); // the text itself waits for the loss of focus
}

TEST_F(TextEditor, TheToolTipShowsTheVeryCharactersOfTheText) {
    node("A").type(L"Edit").set("Default", L"<b>a</b>");
    open();
    EXPECT_EQ(toolTipOf(*editor<QLineEdit>("A")), "<b>a</b>");
    editor<QLineEdit>("A")->setText("<i>b</i>");
    EXPECT_EQ(toolTipOf(*editor<QLineEdit>("A")), "<i>b</i>");
}

TEST_F(DirectoryEditor, ShowsTheStoredDirectory) {
    addAndOpen(known);
    EXPECT_EQ(edit()->text(), known);
    EXPECT_EQ(edit()->toolTip(), known);
    EXPECT_EQ(edit()->cursorPosition(), 0);
    EXPECT_EQ(lastValid(), known);
    EXPECT_EQ(item("Dir")->textValue, known);
    EXPECT_EQ(item("Dir")->buttonMask, unsigned(kMaskModify));
}

TEST_F(DirectoryEditor, APathWithAVariableIsShownAndStoredExpanded) {
    qputenv("OPTION_TEST_SET", known.toUtf8());
    addAndOpen("%OPTION_TEST_SET%/below/%OPTION_TEST_UNSET%x");
    EXPECT_EQ(edit()->text(), known + "/below/x");
    apply();
    EXPECT_EQ(storedText("S", "Dir"), known + "/below/x");
    qunsetenv("OPTION_TEST_SET");
}

TEST_F(DirectoryEditor, TheHistoryFolderIsMadeAndReplacesItsNameInTheStore) {
    addAndOpen("%HISTORY%");
    const QString history = host.rootDir() + "/UnsavedFiles";
    EXPECT_EQ(edit()->text(), history);
    EXPECT_TRUE(QDir(history).exists());
    apply();
    EXPECT_EQ(storedText("S", "Dir"), history);
}

TEST_F(DirectoryEditor, AnExistingDirectoryIsTaken) {
    addAndOpen("");
    typeAndReturn(" " + known + " ");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(lastValid(), known);
    EXPECT_EQ(item("Dir")->textValue, " " + known + " ");
}

TEST_F(DirectoryEditor, BlanksCountAsEmptyAndAreTakenAsTheyStand) {
    addAndOpen(known);
    typeAndReturn("   ");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(item("Dir")->textValue, "   ");
    EXPECT_EQ(lastValid(), known);
}

TEST_F(DirectoryEditor, TheToolTipFollowsTheTypedText) {
    addAndOpen(known);
    edit()->setText("/typed");
    EXPECT_EQ(edit()->toolTip(), "/typed");
    EXPECT_EQ(item("Dir")->textValue, known); // until the edit is finished
}

TEST_F(DirectoryEditor, AMissingDirectoryIsAskedAbout) {
    addAndOpen(known);
    typeAndReturn("/missing/dir");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].kind, standin::MessageKind::Question);
    EXPECT_EQ(host.messages[0].title, "Options");
    EXPECT_EQ(host.messages[0].text,
              "Path \"/missing/dir\" does not exist. Do you want to specify another value?");
    EXPECT_EQ(host.messages[0].buttons, EV_MB_YES | EV_MB_NO);
}

TEST_F(DirectoryEditor, AnyAnswerButYesPutsTheLastOneBack) {
    addAndOpen(known);
    for (const EV_MB_RET answer : {EV_MB_NO, EV_MB_OK, EV_MB_RET(0)}) {
        host.answer(answer);
        FileDialogDriver user(folder.path());
        typeAndReturn("/missing/dir");
        EXPECT_FALSE(user.shown) << answer;
        EXPECT_EQ(edit()->text(), known) << answer;
        EXPECT_EQ(edit()->toolTip(), known) << answer;
        EXPECT_EQ(item("Dir")->textValue, known) << answer;
    }
    EXPECT_EQ(host.messages.size(), 3u);
}

TEST_F(DirectoryEditor, YesOffersTheDirectoryAboveTheMissingOne) {
    QDir(known).mkdir("other");
    addAndOpen(known);
    host.answer(EV_MB_YES);
    FileDialogDriver user(known + "/other");
    typeAndReturn(known + "/missing");
    ASSERT_TRUE(user.shown);
    EXPECT_EQ(user.directory, known);
    EXPECT_TRUE(user.directoriesOnly);
    EXPECT_EQ(user.parentWidget, dialog.get());
    EXPECT_EQ(edit()->text(), known + "/other");
    EXPECT_EQ(edit()->toolTip(), known + "/other");
    EXPECT_EQ(lastValid(), known + "/other");
    EXPECT_EQ(item("Dir")->textValue, known + "/other");
}

// An environment variable for a while.
class Variable {
public:
    Variable(const char* variable, const QString& value)
        : name(variable), wasSet(qEnvironmentVariableIsSet(variable)), before(qgetenv(variable)) {
        qputenv(name, value.toUtf8());
    }
    ~Variable() {
        if (wasSet)
            qputenv(name, before);
        else
            qunsetenv(name);
    }

private:
    const char* name;
    bool wasSet;
    QByteArray before;
};

TEST_F(DirectoryEditor, WhereTheDirectoryAboveIsMissingTooTheChoiceStartsAtTheDesktop) {
    const Variable home("HOME", folder.path());
    const Variable settings("XDG_CONFIG_HOME", folder.path() + "/no settings");
    QDir(folder.path()).mkdir("Desktop");
    addAndOpen(known);
    host.answer(EV_MB_YES);
    FileDialogDriver user;
    typeAndReturn(known + "/missing/twice");
    ASSERT_TRUE(user.shown);
    EXPECT_EQ(user.directory, folder.path() + "/Desktop");
}

TEST_F(DirectoryEditor, CancellingTheChoiceAfterYesPutsTheLastOneBack) {
    addAndOpen(known);
    host.answer(EV_MB_YES);
    FileDialogDriver user;
    typeAndReturn(known + "/missing");
    ASSERT_TRUE(user.shown);
    EXPECT_EQ(edit()->text(), known);
    EXPECT_EQ(item("Dir")->textValue, known);
}

TEST_F(DirectoryEditor, LeavingTheFieldAsksToo) {
    store("S", "Dir", hostqt::cxStringW(known));
    node("Dir").type(L"EditDir").profile("S", "Dir");
    show();
    dialog->tree->setCurrentItem(item("Dir")); // so that the click doesn't hand the focus to OK
    edit()->setFocus();
    ASSERT_TRUE(waitUntil([this] { return edit()->hasFocus(); }));
    edit()->selectAll();
    QTest::keyClicks(edit(), "/missing/dir");
    dialog->cancelButton->setFocus();
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(edit()->text(), known);
}

TEST_F(DirectoryEditor, ReturnInTheFocusedFieldAsksOnceThoughTheEditEndsTwice) {
    store("S", "Dir", hostqt::cxStringW(known));
    node("Dir").type(L"EditDir").profile("S", "Dir");
    show();
    dialog->tree->setCurrentItem(item("Dir"));
    edit()->setFocus();
    ASSERT_TRUE(waitUntil([this] { return edit()->hasFocus(); }));
    typeAndReturn("/missing/dir");
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(edit()->text(), known);
    EXPECT_EQ(item("Dir")->textValue, known);
}

TEST_F(DirectoryEditor, TheBrowseActionStartsAtTheTypedDirectoryAndDoesNotTouchTheItemYet) {
    QDir(known).mkdir("chosen");
    addAndOpen(folder.path());
    edit()->setText(" " + known);
    ASSERT_TRUE(browse());
    FileDialogDriver user(known + "/chosen");
    browse()->trigger();
    EXPECT_EQ(user.directory, known);
    EXPECT_TRUE(user.directoriesOnly);
    EXPECT_EQ(edit()->text(), known + "/chosen");
    EXPECT_EQ(edit()->toolTip(), known + "/chosen");
    EXPECT_EQ(lastValid(), known + "/chosen");
    EXPECT_EQ(item("Dir")->textValue, folder.path());
    QTest::keyClick(edit(), Qt::Key_Return);
    EXPECT_EQ(item("Dir")->textValue, known + "/chosen");
}

TEST_F(DirectoryEditor, AfterAPickTheFieldHasTheFocusSoThatOkEndsTheEdit) {
    store("S", "Dir", hostqt::cxStringW(folder.path()));
    node("Dir").type(L"EditDir").profile("S", "Dir");
    show();
    dialog->tree->setCurrentItem(dialog->tree->topLevelItem(0));
    FileDialogDriver user(known);
    browse()->trigger();
    comeBack();
    EXPECT_TRUE(waitUntil([this] { return edit()->hasFocus(); }));
    EXPECT_EQ(dialog->tree->currentItem(), item("Dir"));
    EXPECT_EQ(edit()->text(), known);
    EXPECT_EQ(item("Dir")->textValue, folder.path()) << "it follows when the edit ends";
    QTest::mouseClick(dialog->okButton, Qt::LeftButton);
    EXPECT_EQ(item("Dir")->textValue, known);
    EXPECT_EQ(storedText("S", "Dir"), known);
}

TEST_F(DirectoryEditor, ACancelledPickLeavesTheFocusWhereItWas) {
    node("Dir").type(L"EditDir").set("Default", hostqt::cxStringW(known));
    show();
    FileDialogDriver user;
    browse()->trigger();
    EXPECT_TRUE(user.shown);
    comeBack();
    EXPECT_TRUE(waitUntil([this] { return dialog->okButton->hasFocus(); }));
    EXPECT_FALSE(edit()->hasFocus());
}

TEST_F(DirectoryEditor, TheToolTipShowsTheVeryCharactersOfTheDirectory) {
    addAndOpen("/<b>a</b>");
    EXPECT_EQ(toolTipOf(*edit()), "/<b>a</b>");
    edit()->setText("/<i>b</i>");
    EXPECT_EQ(toolTipOf(*edit()), "/<i>b</i>");
    QDir(folder.path()).mkdir("<u>c");
    FileDialogDriver user(folder.path() + "/<u>c");
    browse()->trigger();
    EXPECT_EQ(toolTipOf(*edit()), folder.path() + "/<u>c");
}

TEST_F(DirectoryEditor, TheBrowseActionStartsAtTheLastValidOneWhenTheTypedOneIsMissing) {
    addAndOpen(known);
    edit()->setText("/missing/dir");
    FileDialogDriver user;
    browse()->trigger();
    EXPECT_EQ(user.directory, known);
    EXPECT_EQ(edit()->text(), "/missing/dir"); // cancelled: nothing changes
}

TEST_F(DirectoryEditor, TheBrowseActionStartsAtTheLastValidOneWhenNothingIsTyped) {
    addAndOpen(known);
    edit()->setText("  ");
    FileDialogDriver user;
    browse()->trigger();
    EXPECT_EQ(user.directory, known);
}

TEST_F(DirectoryEditor, TheBrowsePictureFollowsTheTheme) {
    addAndOpen(known);
    const QImage dark = browse()->icon().pixmap(16).toImage();
    host.setTheme(1);
    EXPECT_NE(browse()->icon().pixmap(16).toImage(), dark);
}

} // namespace
