// Opening and saving drawings by dialogs.
#include "tests/e2e/drawing_fixture.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace {

struct FileDialogsTest : DrawingFixture {
    FileDialogsTest() {
        play({[this] { submit("FILEDIA"); }, [this] { submit("1"); }});
    }
    QString title() { return bench->window()->windowTitle(); }
    std::function<void()> command(const char* name) {
        return [this, name] { submit(name); };
    }
    static std::function<void()> choosing(const QString& file, QDialogButtonBox::StandardButton button) {
        return [file, button] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
            dialog->findChild<QDialogButtonBox*>("buttonBox")->button(button)->click();
        };
    }
    static std::function<void()> answering(QMessageBox::StandardButton button) {
        return [button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->objectName(), "replaceBox");
            EXPECT_EQ(box->standardButton(box->defaultButton()), QMessageBox::No);
            box->button(button)->click();
        };
    }
    QByteArray bytesOf(const QString& file) {
        QFile stream(root.filePath(file));
        EXPECT_TRUE(stream.open(QIODevice::ReadOnly));
        return stream.readAll();
    }
};

TEST_F(FileDialogsTest, OpenShowsTheChosenDrawing) {
    QFile::copy(path, root.filePath("other.dxf"));
    play({command("OPEN"), choosing(root.filePath("other.dxf"), QDialogButtonBox::Open)});
    EXPECT_EQ(title(), "other.dxf - Workbench");
}

TEST_F(FileDialogsTest, CancelledDialogsChangeNothing) {
    const auto cancelling = [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); };
    play({command("OPEN"), cancelling, command("SAVEAS"), cancelling});
    EXPECT_EQ(title(), "lines.dxf - Workbench");
}

TEST_F(FileDialogsTest, SaveAsAddsTheEnding) {
    play({command("SAVEAS"), choosing(root.filePath("copy"), QDialogButtonBox::Save)});
    EXPECT_EQ(title(), "copy.dxf - Workbench");
    EXPECT_FALSE(QFileInfo::exists(root.filePath("copy")));
    EXPECT_EQ(bytesOf("copy.dxf"), bytesOf("lines.dxf"));
}

TEST_F(FileDialogsTest, SaveAsAsksBeforeItReplacesTheFileWithTheEndingAdded) {
    QFile other(root.filePath("other.dxf"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("somebody's work");
    other.close();
    const auto typed = choosing(root.filePath("other"), QDialogButtonBox::Save);
    play({command("SAVEAS"), typed, answering(QMessageBox::No)});
    EXPECT_EQ(bytesOf("other.dxf"), "somebody's work");
    EXPECT_EQ(title(), "lines.dxf - Workbench");
    play({command("SAVEAS"), typed, answering(QMessageBox::Yes)});
    EXPECT_EQ(bytesOf("other.dxf"), bytesOf("lines.dxf"));
    EXPECT_EQ(title(), "other.dxf - Workbench");
}

} // namespace
