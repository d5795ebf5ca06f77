// The attach command as a whole: files, dialog, and what becomes of the drawing.
#include "tests/xref/attach_dialog_fixture.h"
#include "xref/attach_command.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>

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
    void provideFiles() { static_cast<standin::ServiceHub*>(host.application())->add(files); }
    // With a host that asks for files itself; no dialog may come up.
    int runWithPrompts() {
        provideFiles();
        bool dialogCame = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                dialogCame = true;
                dialog->reject();
            }
        });
        look.start(0);
        const int result = command->Run(nullptr);
        EXPECT_FALSE(dialogCame);
        return result;
    }
    void expectUnchanged(const std::string& before) {
        EXPECT_EQ(drawing->writeBytes(), before);
        EXPECT_EQ(drawing->numActiveTransactions(), 0);
        EXPECT_FALSE(drawing->isUndoBlockStarted());
    }
    QWidget window;
    Ref<Command> command = Ref<Command>::share(new Command);
    Ref<TestAttachFiles> files = Ref<TestAttachFiles>::share(new TestAttachFiles);
};

} // namespace

TEST_F(AttachCommand, CancelledFileDialogEndsBeforeTheDrawingIsTouched) {
    host.closeDocument();
    OnAttachDialog onDialog([](Dialog& dialog) { dialog.reject(); });
    EXPECT_EQ(run(QString()), 0);
    EXPECT_FALSE(onDialog.shown);
    EXPECT_EQ(drawing->numActiveTransactions(), 0);
}

TEST_F(AttachCommand, DialogHasItsTitleAndCentresTheWindowBehindIt) {
    window.move(1, 2);
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    QString title;
    Qt::WindowFlags flags;
    bool modal = false;
    QPoint place;
    bool focused = false;
    QWidget* parent = nullptr;
    OnAttachDialog onDialog([&](Dialog& dialog) {
        focused = dialog.focusWidget() == &dialog;
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
    EXPECT_TRUE(focused) << "none of its controls";
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
    QStringList whileOpen;
    OnAttachDialog onDialog([&](Dialog& dialog) {
        whileOpen = referenceNames();
        dialog.cancelButton->click();
    });
    run(write("part.dxf"));
    EXPECT_EQ(whileOpen, QStringList("part"));
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
    const std::string before = drawing->writeBytes();
    drawing->blockUndoRecording(true);
    define("first", "/x/first.dxf");
    io.script({pick(4, 5)});
    runAndPress(write("part.dxf"), "okButton");
    EXPECT_TRUE(drawing->isUndoBlockStarted());
    define("last", "/x/last.dxf");
    drawing->blockUndoRecording(false);
    EXPECT_EQ(referenceNames(), QStringList({"first", "part", "last"}));
    EXPECT_TRUE(drawing->undo());
    EXPECT_EQ(drawing->writeBytes(), before) << "the caller's block is one step";
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
    bool wasNew = false;
    OnAttachDialog onDialog([&](Dialog& dialog) {
        wasNew = isNewDefinition(block("part")->objectId());
        dialog.okButton->click();
    });
    io.script({pick(4, 5)});
    run(write("part.dxf"));
    EXPECT_TRUE(wasNew);
    EXPECT_FALSE(isNewDefinition(block("part")->objectId()));
}

TEST_F(AttachCommand, SecondRunKeepsTheKindOfTheFirst) {
    io.script({pick(4, 5), pick(6, 7)});
    runAndPress(write("part.dxf"), "okButton");
    OnAttachDialog onDialog([](Dialog& dialog) {
        dialog.overlayRadio->click();
        EXPECT_TRUE(dialog.overlayRadio->isChecked());
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

TEST_F(AttachCommand, DefinitionOfAFileThatWasLeftForAnotherNameIsGone) {
    define("other", write("other.dxf"));
    io.script({pick(4, 5)});
    OnAttachDialog onDialog([](Dialog& dialog) {
        dialog.nameCombo->setCurrentIndex(0);
        emit dialog.nameCombo->activated(0);
        dialog.okButton->click();
    });
    run(write("part.dxf"));
    ASSERT_EQ(inserted().size(), 1u);
    EXPECT_EQ(inserted()[0]->blockName(), OdString(L"other"));
    EXPECT_EQ(referenceNames(), QStringList("other"));
}

TEST_F(AttachCommand, DefinitionOfAFileThatWasLeftForAnotherNameIsGoneAfterEscapeToo) {
    define("other", write("other.dxf"));
    io.script({cancel()});
    OnAttachDialog onDialog([](Dialog& dialog) {
        dialog.nameCombo->setCurrentIndex(0);
        emit dialog.nameCombo->activated(0);
        dialog.okButton->click();
    });
    run(write("part.dxf"));
    EXPECT_TRUE(inserted().empty());
    EXPECT_EQ(referenceNames(), QStringList("other"));
}

TEST_F(AttachCommand, FilesThatTheHostAsksForAreAttachedWithoutADialog) {
    files->chosen = {hostqt::odString(write("part.dxf"))};
    io.script({pick(4, 5)});
    EXPECT_EQ(runWithPrompts(), 0);
    ASSERT_EQ(inserted().size(), 1u);
    EXPECT_EQ(inserted()[0]->position(), OdGePoint3d(4, 5, 0));
    EXPECT_EQ(io.prompts(), QStringList("Specify insertion point or [%s]"));
    EXPECT_TRUE(drawing->undo());
    EXPECT_TRUE(referenceNames().isEmpty());
}

TEST_F(AttachCommand, FilesThatTheHostAsksForAreTakenBackAtEscapeOrWhenOneIsBad) {
    const std::string before = drawing->writeBytes();
    files->chosen = {hostqt::odString(write("part.dxf"))};
    io.script({cancel()});
    runWithPrompts();
    EXPECT_FALSE(io.ranOut);
    EXPECT_EQ(io.questions.size(), 1u);
    expectUnchanged(before);
    files->chosen.push_back(odPath("gone.dxf"));
    runWithPrompts();
    EXPECT_EQ(noticeTexts(),
              QStringList(QStringLiteral("\"%1\" cannot be found.").arg(inFolder("gone.dxf"))));
    expectUnchanged(before);
}

TEST_F(AttachCommand, NothingIsAttachedWhenTheHostHasAskedAndGotNoFile) {
    const std::string before = drawing->writeBytes();
    runWithPrompts();
    EXPECT_TRUE(io.questions.empty());
    expectUnchanged(before);
}

TEST_F(AttachCommand, HostThatDoesNotAskLeavesItToTheDialogs) {
    provideFiles();
    files->asks = false;
    files->chosen = {odPath("part.dxf")};
    io.script({pick(4, 5)});
    runAndPress(write("other.dxf"), "okButton");
    EXPECT_EQ(referenceNames(), QStringList("other"));
}

TEST_F(AttachCommand, AnswersLikeEveryCommandObject) {
    EXPECT_EQ(command->getStatus(), 0);
    EXPECT_EQ(command->constantZero(), 0);
    EXPECT_EQ(command->enableQuery(), 1);
    runAndPress(write("part.dxf"), "cancelButton");
    EXPECT_EQ(command->getStatus(), 0);
}
