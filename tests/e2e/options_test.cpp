// The Options dialog in the real program: what a user changes is there in the next run, and Cancel keeps
// nothing.
#include "tests/e2e/script_fixture.h"
#include "tests/e2e/workbench_fixture.h"

#include <QAbstractButton>
#include <QDir>
#include <QPlainTextEdit>
#include <QSpinBox>

namespace {

struct OptionsRun : WorkbenchFixture {
    template <class T> static T* control(const char* name) {
        QWidget* dialog = QApplication::activeModalWidget();
        return dialog ? dialog->findChild<T*>(QString::fromLatin1(name)) : nullptr;
    }
    // Opens the options, changes the size of the console's letters, and leaves by a button. Gives the size
    // that was there before.
    int setFontSize(int size, const char* button) {
        int before = -1;
        play({[this] { submit("QPREF"); },
              [&] {
                  auto* box = control<QSpinBox>("ConsoleFontSize");
                  ASSERT_TRUE(box);
                  before = box->value();
                  box->setValue(size);
                  control<QAbstractButton>(button)->click();
              }});
        return before;
    }
    int consoleSize() { return part<QPlainTextEdit>("transcriptView")->font().pointSize(); }
};

TEST_F(OptionsRun, WhatOkKeepsIsInEffectAtOnceAndThereInTheNextRun) {
    EXPECT_NE(setFontSize(17, "okButton"), 17);
    EXPECT_EQ(consoleSize(), 17);
    restart();
    EXPECT_EQ(consoleSize(), 17);
    EXPECT_EQ(setFontSize(11, "okButton"), 17);
}

TEST_F(OptionsRun, WhatCancelDropsIsNeitherInEffectNorKept) {
    const int before = consoleSize();
    EXPECT_EQ(setFontSize(17, "cancelButton"), before);
    EXPECT_EQ(consoleSize(), before);
    restart();
    EXPECT_EQ(setFontSize(11, "cancelButton"), before);
}

// Searches, adds two folders and puts the second one first, adds a picture format, deletes a paper.
struct OptionLists : ScriptFixture {
    void SetUp() override {
        QDir(folder.path()).mkdir("one");
        QDir(folder.path()).mkdir("two");
    }
    Result workThrough(const QByteArray& button) {
        const QByteArray one = folder.filePath("one").toLocal8Bit(),
                         two = folder.filePath("two").toLocal8Bit();
        const auto addFolder = [](const QByteArray& path) {
            return "@select Support files\n@click addButton\n@wait DirsDialog\n@set lineEdit " + path +
                   "\n@click okButton\n@wait Preferences\n";
        };
        return play("QPREF\n@wait Preferences\n@set searchEdit autosave\n@key Return\n"
                    "@select Autosave interval > min\n@click clearAction\n@select Display\n" +
                    addFolder(one) + addFolder(two) +
                    "@click upButton\n"
                    "@select JPEG picture\n@click addButton\n@wait QDialog\n@set nameEdit scans\n"
                    "@set descriptionEdit Pictures of scanners\n@set extensionEdit scn\n@click okButton\n"
                    "@wait Preferences\n"
                    "@select A6 (105.00 x 148.00 mm)\n@click deleteButton\n@wait QMessageBox\n@click Yes\n"
                    "@wait Preferences\n@click " +
                    button + "\nDRAWINGS\n");
    }
    QString fileInRoot(const char* name) {
        QFile file(folder.filePath("root/") + name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
};

TEST_F(OptionLists, CancelKeepsNothingButTheDeletedPaper) {
    const Result result = workThrough("cancelButton");
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
    EXPECT_EQ(fileInRoot("stddirs.yaml"), "");
    EXPECT_EQ(fileInRoot("formats.yaml"), "");
    EXPECT_FALSE(fileInRoot("profile.yaml").contains("ExpandedSections"));
    const QString papers = fileInRoot("papers.yaml"); // a paper is deleted at once, and that is meant
    EXPECT_TRUE(papers.contains("\"A5\""));
    EXPECT_FALSE(papers.contains("\"A6\""));
}

TEST_F(OptionLists, OkKeepsAllOfIt) {
    const Result result = workThrough("okButton");
    EXPECT_EQ(result.status, 0) << result.err.toStdString();
    EXPECT_TRUE(fileInRoot("profile.yaml").contains("ExpandedSections"));
    const QString folders = fileInRoot("stddirs.yaml");
    const int first = folders.indexOf(folder.filePath("two")),
              second = folders.indexOf(folder.filePath("one"));
    EXPECT_GE(first, 0);
    EXPECT_LT(first, second);
    EXPECT_TRUE(fileInRoot("formats.yaml").contains("Format13: \"scans\""))
        << fileInRoot("formats.yaml").toStdString();
    EXPECT_FALSE(fileInRoot("papers.yaml").contains("\"A6\""));
    const QByteArray two = folder.filePath("two").toLocal8Bit();
    const Result again = play("QPREF\n@wait Preferences\n@select " + two +
                              "\n@select Pictures of scanners\n@click cancelButton\nDRAWINGS\n");
    EXPECT_EQ(again.status, 0) << again.err.toStdString();
}

} // namespace
