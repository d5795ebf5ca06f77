// The file dialog of the attach command.
#include "tests/support/file_dialog_driver.h"
#include "tests/xref/xref_fixture.h"
#include "xref/file_selection.h"

#include <QTimer>
#include <QTranslator>

namespace {

class FileSelection : public XRefTest {
protected:
    QWidget window;
};

} // namespace

TEST_F(FileSelection, AsksForDrawingsFromTheRoot) {
    FileDialogDriver driver;
    EXPECT_TRUE(selectXRefFiles(&window, true).isEmpty());
    EXPECT_EQ(driver.filters, QStringList("Drawing (*.dwg;)"));
    EXPECT_EQ(driver.directory, "/");
    EXPECT_EQ(driver.mode, QFileDialog::ExistingFiles);
    EXPECT_EQ(driver.parentWidget, &window);
}

TEST_F(FileSelection, HasItsCaptionAndStaysOnTopOfTheWholeApplication) {
    QString caption;
    Qt::WindowFlags flags;
    Qt::WindowModality modality = Qt::NonModal;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        caption = dialog->windowTitle();
        flags = dialog->windowFlags();
        modality = dialog->windowModality();
        dialog->reject();
    });
    look.start(5);
    selectXRefFiles(&window, true);
    EXPECT_EQ(caption, "External Reference");
    EXPECT_EQ(flags & Qt::WindowType_Mask, Qt::Window);
    EXPECT_TRUE(flags & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(modality, Qt::ApplicationModal);
}

TEST_F(FileSelection, ForOneFileTakesOne) {
    FileDialogDriver driver(write("part.dxf"));
    EXPECT_EQ(selectXRefFiles(&window, false), QStringList(inFolder("part.dxf")));
    EXPECT_EQ(driver.mode, QFileDialog::ExistingFile);
}

TEST_F(FileSelection, ShippedEnglishWordingListsDrawings) {
    class Wording : public QTranslator {
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char* text, const char*, int) const override {
            const bool filter = QByteArray(context) == "OdQCmd_hostAttachExternalReferenceCommand" &&
                                QByteArray(text) == "Drawing (*.dwg;)";
            return filter ? QStringLiteral("Drawings (*.dxf *.dwg)") : QString();
        }
    } wording;
    QCoreApplication::installTranslator(&wording);
    FileDialogDriver driver;
    selectXRefFiles(&window, true);
    QCoreApplication::removeTranslator(&wording);
    EXPECT_EQ(driver.filters, QStringList("Drawings (*.dxf *.dwg)"));
}
