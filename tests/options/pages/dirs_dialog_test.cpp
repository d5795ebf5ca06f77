// The dialog for one directory of a list.
#include "options/pages/directories/dirs_dialog.h"

#include "tests/options/pages/page_fixture.h"
#include "tests/support/file_dialog_driver.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

class DirsDialogs : public testing::Test {
protected:
    // A dialog on `path`, into which the user types `text` and presses OK.
    void enter(DirsDialog& dialog, const QString& text) {
        dialog.setWindowTitle("Fonts");
        typeInto(dialog, "lineEdit", text);
        clickOn(dialog, "okButton");
    }
    QString textOf(const DirsDialog& dialog) { return named<QLineEdit>(dialog, "lineEdit")->text(); }

    FixtureHost host;
    QTemporaryDir folder;
};

} // namespace

TEST_F(DirsDialogs, IsASmallFixedWindowWithTitleAndCloseButton) {
    QString path;
    const DirsDialog dialog(path, nullptr);
    const Qt::WindowFlags wanted =
        Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint;
    EXPECT_EQ(dialog.windowFlags() & wanted, wanted);
    EXPECT_FALSE(dialog.windowFlags() & Qt::WindowContextHelpButtonHint);
    EXPECT_EQ(dialog.minimumSize(), QSize(400, 100));
    EXPECT_EQ(dialog.maximumSize(), QSize(400, 100));
    EXPECT_EQ(named<QPushButton>(dialog, "okButton")->text(), "OK");
    EXPECT_EQ(named<QPushButton>(dialog, "cancelButton")->text(), "Cancel");
    EXPECT_EQ(named<QPushButton>(dialog, "browseButton")->text(), "Browse");
}

TEST_F(DirsDialogs, BrowseStandsBesideThePathAndTheOtherButtonsBelow) {
    QString path;
    DirsDialog dialog(path, nullptr);
    dialog.show();
    const auto place = [&dialog](const char* name) { return named<QWidget>(dialog, name)->geometry(); };
    EXPECT_GT(place("browseButton").left(), place("lineEdit").right());
    EXPECT_GT(place("okButton").top(), place("lineEdit").bottom());
    EXPECT_GT(place("cancelButton").left(), place("okButton").right());
    EXPECT_GT(place("okButton").left(), 100) << "pushed to the right";
}

TEST_F(DirsDialogs, StartsWithThePathAndTheCursorBeforeIt) {
    QString path = "/somewhere";
    const DirsDialog dialog(path, nullptr);
    EXPECT_EQ(textOf(dialog), "/somewhere");
    EXPECT_EQ(named<QLineEdit>(dialog, "lineEdit")->cursorPosition(), 0);
}

TEST_F(DirsDialogs, CancelLeavesTheCallersPath) {
    QString path = "/somewhere";
    DirsDialog dialog(path, nullptr);
    typeInto(dialog, "lineEdit", folder.path());
    clickOn(dialog, "cancelButton");
    EXPECT_EQ(path, "/somewhere");
    EXPECT_EQ(dialog.QDialog::result(), QDialog::Rejected);
}

TEST_F(DirsDialogs, AnExistingDirectoryIsTakenWithoutTheBlanksAroundIt) {
    QString path = "/somewhere";
    DirsDialog dialog(path, nullptr);
    enter(dialog, "  " + folder.path() + " ");
    EXPECT_EQ(path, QDir::toNativeSeparators(folder.path()));
    EXPECT_EQ(dialog.QDialog::result(), QDialog::Accepted);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(DirsDialogs, AMissingPathThatIsTheOldOneClosesTheDialogAndKeepsTheOldOne) {
    QString path = "/Missing/Path";
    DirsDialog dialog(path, nullptr);
    enter(dialog, "/missing/PATH");
    EXPECT_EQ(path, "/Missing/Path");
    EXPECT_EQ(dialog.QDialog::result(), QDialog::Accepted);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(DirsDialogs, AnExistingDirectoryIsTakenThoughItDiffersFromTheOldPathInLetterCaseOnly) {
    ASSERT_TRUE(QDir(folder.path()).mkdir("name"));
    QString path = folder.filePath("NAME");
    DirsDialog dialog(path, nullptr);
    enter(dialog, folder.filePath("name"));
    EXPECT_EQ(path, folder.filePath("name"));
    EXPECT_EQ(dialog.QDialog::result(), QDialog::Accepted);
}

TEST_F(DirsDialogs, AMissingPathIsAskedAboutUnderTheDialogsTitle) {
    QString path;
    DirsDialog dialog(path, nullptr);
    host.answer(EV_MB_NO);
    enter(dialog, "/missing/%1");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].kind, standin::MessageKind::Question);
    EXPECT_EQ(host.messages[0].title, "Fonts");
    EXPECT_EQ(host.messages[0].text,
              "Path \"/missing/%1\" does not exists.\nAre you sure you want to use this value?");
    EXPECT_EQ(int(host.messages[0].buttons), EV_MB_YES | EV_MB_NO);
}

TEST_F(DirsDialogs, NoKeepsTheDialogOpen) {
    QString path = "/old";
    DirsDialog dialog(path, nullptr);
    dialog.show();
    host.answer(EV_MB_NO);
    enter(dialog, "/missing");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(path, "/old");
    EXPECT_EQ(textOf(dialog), "/missing");
}

TEST_F(DirsDialogs, YesTakesAPathWithASeparatorAsItStands) {
    QString path;
    DirsDialog dialog(path, nullptr);
    host.answer(EV_MB_YES);
    enter(dialog, " missing/below ");
    EXPECT_EQ(path, "missing/below");
    EXPECT_EQ(dialog.QDialog::result(), QDialog::Accepted);
}

TEST_F(DirsDialogs, YesPutsANameWithoutASeparatorBelowTheApplicationDirectory) {
    QString path;
    DirsDialog dialog(path, nullptr);
    host.answer(EV_MB_YES);
    enter(dialog, "no such folder");
    EXPECT_EQ(path, QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) + QDir::separator() +
                        "no such folder");
}

TEST_F(DirsDialogs, AnEmptyPathIsAccepted) {
    QString path = "/old";
    DirsDialog dialog(path, nullptr);
    enter(dialog, "");
    EXPECT_EQ(path, "");
    EXPECT_EQ(dialog.QDialog::result(), QDialog::Accepted);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(DirsDialogs, AFileIsNoDirectory) {
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QString path;
    DirsDialog dialog(path, nullptr);
    enter(dialog, file.fileName());
    EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(DirsDialogs, ADirectoryThatDisappearsWhileTheDialogIsOpenIsAskedAbout) {
    ASSERT_TRUE(QDir(folder.path()).mkdir("gone"));
    QString path;
    DirsDialog dialog(path, nullptr);
    typeInto(dialog, "lineEdit", folder.filePath("gone"));
    ASSERT_TRUE(QDir(folder.path()).rmdir("gone"));
    host.answer(EV_MB_NO);
    clickOn(dialog, "okButton");
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(path, "");
}

TEST_F(DirsDialogs, APathOfFourThousandCharactersIsTakenWhole) {
    const QString longPath = "/" + QString(4000, 'x');
    QString path;
    DirsDialog dialog(path, nullptr);
    named<QLineEdit>(dialog, "lineEdit")->setText(longPath);
    host.answer(EV_MB_YES);
    clickOn(dialog, "okButton");
    EXPECT_EQ(path, longPath);
}

TEST_F(DirsDialogs, BrowseStartsAtAnExistingDirectoryAndOffersDirectoriesOnly) {
    QString path = folder.path();
    DirsDialog dialog(path, nullptr);
    FileDialogDriver driver;
    clickOn(dialog, "browseButton");
    EXPECT_TRUE(driver.shown);
    EXPECT_EQ(driver.directory, folder.path());
    EXPECT_TRUE(driver.directoriesOnly);
    EXPECT_EQ(driver.parentWidget, &dialog);
    EXPECT_EQ(textOf(dialog), folder.path()) << "a cancelled choice leaves the text";
}

TEST_F(DirsDialogs, BrowseDoesNotStartAtAMissingDirectory) {
    QString path = folder.filePath("missing");
    DirsDialog dialog(path, nullptr);
    FileDialogDriver driver;
    clickOn(dialog, "browseButton");
    EXPECT_TRUE(driver.shown);
    EXPECT_NE(driver.directory, path);
    EXPECT_NE(driver.directory, folder.path());
    EXPECT_EQ(textOf(dialog), path);
}

TEST_F(DirsDialogs, ABrowsedDirectoryGoesIntoTheEditAndTheResultOnOk) {
    ASSERT_TRUE(QDir(folder.path()).mkdir("chosen"));
    QString path = folder.path();
    DirsDialog dialog(path, nullptr);
    FileDialogDriver driver(folder.filePath("chosen"));
    clickOn(dialog, "browseButton");
    EXPECT_EQ(textOf(dialog), folder.filePath("chosen"));
    EXPECT_EQ(path, folder.path());
    clickOn(dialog, "okButton");
    EXPECT_EQ(path, QDir::toNativeSeparators(folder.filePath("chosen")));
}

TEST_F(DirsDialogs, ReturnPressesOk) {
    QString path;
    DirsDialog dialog(path, nullptr);
    dialog.show();
    typeInto(dialog, "lineEdit", folder.path());
    QTest::keyClick(named<QLineEdit>(dialog, "lineEdit"), Qt::Key_Return);
    EXPECT_EQ(path, folder.path());
}
