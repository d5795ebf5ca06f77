// The attach command as a whole: files, dialog, and what becomes of the drawing.
#include "tests/xref/attach_dialog_fixture.h"
#include "xref/attach_command.h"
#include "xref/file_selection.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QTranslator>

namespace {

using Command = OdQCmd_hostAttachExternalReferenceCommand;
using Dialog = hostInsertExternalReferenceDialog;

// Runs `hands` on the next attach dialog that comes up.
class OnAttachDialog : public QObject {
public:
    explicit OnAttachDialog(std::function<void(Dialog&)> action) : hands(std::move(action)) {
        connect(&timer, &QTimer::timeout, this, &OnAttachDialog::look);
        timer.start(5);
    }
    bool shown = false;

private:
    void look() {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer.stop();
        shown = true;
        hands(*dialog);
    }
    std::function<void(Dialog&)> hands;
    QTimer timer;
};

class AttachCommand : public XRefTest {
protected:
    AttachCommand() { window.resize(200, 100); }
    int run(const QString& chosen) {
        FileDialogDriver driver(chosen);
        const int result = command->Run(nullptr);
        EXPECT_TRUE(driver.shown);
        return result;
    }
    void runAndPress(const QString& chosen, const char* button) {
        OnAttachDialog onDialog(
            [button](Dialog& dialog) { dialog.findChild<QPushButton*>(QLatin1String(button))->click(); });
        EXPECT_EQ(run(chosen), 0);
        EXPECT_TRUE(onDialog.shown);
    }
    void expectUnchanged(const std::string& before) {
        EXPECT_EQ(drawing->writeBytes(), before);
        EXPECT_EQ(drawing->numActiveTransactions(), 0);
        EXPECT_FALSE(drawing->isUndoBlockStarted());
    }
    QWidget window;
    Ref<Command> command = Ref<Command>::share(new Command);
};

} // namespace

TEST_F(AttachCommand, CancelledFileDialogEndsBeforeTheDrawingIsTouched) {
    host.closeDocument();
    OnAttachDialog onDialog([](Dialog& dialog) { dialog.reject(); });
    EXPECT_EQ(run(QString()), 0);
    EXPECT_FALSE(onDialog.shown);
    EXPECT_EQ(drawing->numActiveTransactions(), 0);
}

TEST_F(AttachCommand, FileDialogAsksForDrawingsFromTheRoot) {
    FileDialogDriver driver;
    EXPECT_TRUE(selectXRefFiles(&window, true).isEmpty());
    EXPECT_EQ(driver.filters, QStringList("Drawing (*.dwg;)"));
    EXPECT_EQ(driver.directory, "/");
    EXPECT_EQ(driver.mode, QFileDialog::ExistingFiles);
    EXPECT_EQ(driver.parentWidget, &window);
}

TEST_F(AttachCommand, FileDialogHasItsCaptionAndStaysOnTopOfTheWholeApplication) {
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

TEST_F(AttachCommand, FileDialogForOneFileTakesOne) {
    FileDialogDriver driver(write("part.dxf"));
    EXPECT_EQ(selectXRefFiles(&window, false), QStringList(inFolder("part.dxf")));
    EXPECT_EQ(driver.mode, QFileDialog::ExistingFile);
}

TEST_F(AttachCommand, DialogHasItsTitleAndCentresTheWindowBehindIt) {
    window.move(1, 2);
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    QString title;
    Qt::WindowFlags flags;
    bool modal = false;
    QPoint place;
    QWidget* parent = nullptr;
    OnAttachDialog onDialog([&](Dialog& dialog) {
        title = dialog.windowTitle();
        flags = dialog.windowFlags();
        modal = dialog.isModal();
        parent = dialog.parentWidget();
        place = window.pos();
        dialog.reject();
    });
    const QWidgetList windows = QApplication::topLevelWidgets();
    ASSERT_EQ(windows.value(0), &window);
    run(write("part.dxf"));
    EXPECT_EQ(title, "External reference");
    EXPECT_EQ(flags & Qt::WindowType_Mask, Qt::Window);
    EXPECT_TRUE(flags & Qt::MSWindowsFixedSizeDialogHint);
    EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
    EXPECT_TRUE(modal);
    EXPECT_EQ(parent, &window);
    EXPECT_EQ(place, QPoint((screen.width() - 200) / 2, (screen.height() - 100) / 2));
}

TEST_F(AttachCommand, OkKeepsTheReference) {
    io.script({pick(4, 5)});
    runAndPress(write("part.dxf"), "okButton");
    EXPECT_EQ(referenceNames(), QStringList("part"));
    ASSERT_EQ(inserted().size(), 1u);
    EXPECT_EQ(inserted()[0]->position(), OdGePoint3d(4, 5, 0));
    EXPECT_EQ(drawing->numActiveTransactions(), 0);
}

TEST_F(AttachCommand, CancelTakesEverythingBack) {
    const std::string before = drawing->writeBytes();
    runAndPress(write("part.dxf"), "cancelButton");
    expectUnchanged(before);
}

TEST_F(AttachCommand, UndoTakesAnAttachBackInOneStepAndRedoBringsItAgain) {
    const std::string before = drawing->writeBytes();
    io.script({pick(4, 5)});
    runAndPress(write("part.dxf"), "okButton");
    const std::string after = drawing->writeBytes();
    EXPECT_NE(after, before);
    EXPECT_TRUE(drawing->undo());
    EXPECT_TRUE(referenceNames().isEmpty());
    EXPECT_EQ(drawing->writeBytes(), before);
    EXPECT_TRUE(drawing->redo());
    EXPECT_EQ(drawing->writeBytes(), after);
}

TEST_F(AttachCommand, UndoTakesSeveralFilesBackInOneStep) {
    const std::string before = drawing->writeBytes();
    runAndPress('"' + write("a.dxf") + "\" \"" + write("b.dxf") + '"', "okButton");
    EXPECT_EQ(inserted().size(), 2u);
    EXPECT_TRUE(drawing->undo());
    EXPECT_EQ(drawing->writeBytes(), before);
}

TEST_F(AttachCommand, UndoBlockOfTheCallerStaysOpen) {
    drawing->blockUndoRecording(true);
    runAndPress(write("part.dxf"), "cancelButton");
    EXPECT_TRUE(drawing->isUndoBlockStarted());
    drawing->blockUndoRecording(false);
}

TEST_F(AttachCommand, SeveralFilesReachTheDialogAsOneList) {
    QString list;
    OnAttachDialog onDialog([&](Dialog& dialog) {
        list = dialog.path;
        dialog.reject();
    });
    run('"' + write("b.dxf") + "\" \"" + write("a.dxf") + "\" \"" + write("c.dxf") + '"');
    EXPECT_EQ(list, inFolder("b.dxf") + ';' + inFolder("a.dxf") + ';' + inFolder("c.dxf"));
}

TEST_F(AttachCommand, FileThatGivesNoBlockNameEndsWithoutADialog) {
    const std::string before = drawing->writeBytes();
    OnAttachDialog onDialog([](Dialog& dialog) { dialog.reject(); });
    EXPECT_EQ(run(writeBytes(".dxf", "x")), 0);
    EXPECT_FALSE(onDialog.shown);
    expectUnchanged(before);
}

TEST_F(AttachCommand, FileNameWithASemicolonIsTakenForTwoFilesAndNothingStays) {
    const std::string before = drawing->writeBytes();
    runAndPress(write("a;b.dxf"), "okButton");
    EXPECT_EQ(noticeTexts(), QStringList({QStringLiteral("\"%1\" cannot be found.").arg(inFolder("a")),
                                          "\"b.dxf\" cannot be found."}));
    expectUnchanged(before);
}

TEST_F(AttachCommand, DrawingsOwnBaseNameIsPrintedAndNothingStays) {
    const std::string before = drawing->writeBytes();
    QDir(folder.path()).mkdir("other");
    runAndPress(write("other/site.dxf"), "okButton");
    EXPECT_EQ(io.formatted, QStringList("Error: Possible circular reference to current drawing."));
    expectUnchanged(before);
}

TEST_F(AttachCommand, OneBadFileOfSeveralTakesAllBack) {
    const std::string before = drawing->writeBytes();
    runAndPress('"' + write("a.dxf") + "\" \"" + writeBytes("bad.dxf", "x") + '"', "okButton");
    EXPECT_EQ(noticeTexts(), QStringList("Drawing file is not valid."));
    expectUnchanged(before);
}

TEST_F(AttachCommand, FileThatDisappearsBeforeOkIsNamedAndNothingStays) {
    const std::string before = drawing->writeBytes();
    const QString path = write("part.dxf");
    OnAttachDialog onDialog([&](Dialog& dialog) {
        QFile::remove(path);
        dialog.okButton->click();
    });
    EXPECT_EQ(run(path), 0);
    EXPECT_EQ(noticeTexts(), QStringList(QStringLiteral("\"%1\" cannot be found.").arg(path)));
    expectUnchanged(before);
}

TEST_F(AttachCommand, EscapeAtEachPromptLeavesTheDrawingAsItWas) {
    const std::string before = drawing->writeBytes();
    const std::vector<Answer> answers[] = {
        {cancel()}, {pick(1, 1), cancel()}, {pick(1, 1), pick(3, 4), cancel()}};
    const QString path = write("part.dxf");
    for (const std::vector<Answer>& script : answers) {
        io.answers.assign(script.begin(), script.end());
        OnAttachDialog onDialog([](Dialog& dialog) {
            dialog.scaleOnScreenCheck->click();
            dialog.rotationOnScreenCheck->click();
            dialog.okButton->click();
        });
        run(path);
        EXPECT_TRUE(io.answers.empty());
        EXPECT_FALSE(io.ranOut);
        expectUnchanged(before);
    }
}

TEST_F(AttachCommand, TransactionsOfTheCallerStayOpen) {
    drawing->startTransaction();
    io.script({pick(4, 5)});
    runAndPress(write("part.dxf"), "okButton");
    EXPECT_EQ(drawing->numActiveTransactions(), 1);
    EXPECT_EQ(referenceNames(), QStringList("part"));
    drawing->abortTransaction();
    EXPECT_TRUE(referenceNames().isEmpty());
}

TEST_F(AttachCommand, ExceptionFromTheDialogTakesEverythingBackAndPasses) {
    const std::string before = drawing->writeBytes();
    QPointer<Dialog> open;
    OnAttachDialog onDialog([&](Dialog& dialog) {
        open = &dialog;
        throw OdError(eInvalidInput);
    });
    FileDialogDriver driver(write("part.dxf"));
    EXPECT_THROW(command->Run(nullptr), OdError);
    EXPECT_TRUE(open.isNull());
    expectUnchanged(before);
}

TEST_F(AttachCommand, NewDefinitionsAreForgottenAtTheEnd) {
    io.script({pick(4, 5)});
    runAndPress(write("part.dxf"), "okButton");
    EXPECT_FALSE(isNewDefinition(block("part")->objectId()));
}

TEST_F(AttachCommand, SecondRunKeepsTheKindOfTheFirst) {
    io.script({pick(4, 5), pick(6, 7)});
    runAndPress(write("part.dxf"), "okButton");
    OnAttachDialog onDialog([](Dialog& dialog) {
        dialog.overlayRadio->click();
        dialog.okButton->click();
    });
    run(inFolder("part.dxf"));
    EXPECT_EQ(inserted().size(), 2u);
    EXPECT_FALSE(block("part")->isFromOverlayReference());
}

TEST_F(AttachCommand, ReferenceIsFoundAgainAfterSavingAndOpening) {
    io.script({pick(4, 5)});
    runAndPress(write("part.dxf"), "okButton");
    drawing->writeFile(odPath("site.dxf"));
    const OdDbDatabasePtr again = OdDbDatabase::readFile(odPath("site.dxf"));
    EXPECT_TRUE(OdDbXRefMan::loadAll(again.get()).empty());
    host.openDocument(again);
    drawing = again;
    EXPECT_EQ(referenceNames(), QStringList("part"));
    EXPECT_EQ(inserted().at(0)->position(), OdGePoint3d(4, 5, 0));
}

TEST_F(AttachCommand, AnswersLikeEveryCommandObject) {
    EXPECT_EQ(command->getStatus(), 0);
    EXPECT_EQ(command->constantZero(), 0);
    EXPECT_EQ(command->enableQuery(), 1);
    runAndPress(write("part.dxf"), "cancelButton");
    EXPECT_EQ(command->getStatus(), 0);
}

TEST_F(AttachCommand, ShippedEnglishWordingListsDrawings) {
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
