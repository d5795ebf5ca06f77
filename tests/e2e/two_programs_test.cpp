// Another workbench on the same folder: what it sets reaches this one, and is never set back by the Options
// dialog, which writes all of its rows.
#include "tests/e2e/workbench_fixture.h"

#include <QAbstractButton>
#include <QFile>
#include <QPlainTextEdit>
#include <QSpinBox>

namespace {

struct TwoPrograms : WorkbenchFixture {
    QString profile() const { return root.filePath("profile.yaml"); }
    QByteArray stored() const {
        QFile file(profile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // As another process writes it: the whole file with one value changed.
    void otherSets(const QByteArray& name, const QByteArray& value) {
        QByteArray text = stored();
        const int at = text.indexOf(name + ": ");
        ASSERT_GE(at, 0) << name.constData();
        text.replace(at, text.indexOf('\n', at) - at, name + ": " + value);
        QFile file(profile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    template <class T> static T* control(const char* name) {
        QWidget* dialog = QApplication::activeModalWidget();
        return dialog ? dialog->findChild<T*>(QString::fromLatin1(name)) : nullptr;
    }
    int consoleSize() { return part<QPlainTextEdit>("transcriptView")->font().pointSize(); }
    QStringList copies() const { return QDir(root.path()).entryList({"*.other-*"}, QDir::Files); }
};

TEST_F(TwoPrograms, AValueThatTheOtherSetsWhileTheOptionsAreOpenStaysAndIsFollowed) {
    play({[this] { submit("QPREF"); },
          [] {
              control<QSpinBox>("ConsoleFontSize")->setValue(12);
              control<QAbstractButton>("okButton")->click();
          }});
    ASSERT_TRUE(waitUntil([this] { return stored().contains("ConsoleFontSize: 12"); }));
    play({[this] { submit("QPREF"); },
          [this] {
              otherSets("ConsoleFontSize", "15");
              control<QSpinBox>("ConsoleLines")->setValue(3000);
              control<QAbstractButton>("applyButton")->click();
          },
          [this] {
              EXPECT_TRUE(waitUntil([this] { return stored().contains("ConsoleLines: 3000"); }));
              EXPECT_TRUE(stored().contains("ConsoleFontSize: 15"));
              control<QSpinBox>("ConsoleLines")->setValue(4000);
              control<QAbstractButton>("okButton")->click();
          }});
    EXPECT_TRUE(waitUntil([this] { return stored().contains("ConsoleLines: 4000"); }));
    EXPECT_TRUE(stored().contains("ConsoleFontSize: 15"))
        << "the dialog set back what the other program has set";
    EXPECT_TRUE(waitUntil([this] { return consoleSize() == 15; })) << "the value does not reach the console";
    EXPECT_EQ(copies(), QStringList());
}

} // namespace
