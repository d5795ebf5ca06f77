// One run of the attach command: files, dialog, and what is kept of it.
#include "xref/attach_command.h"

#include "host/app.h"
#include "host/attach_files.h"
#include "host/dialog_habits.h"
#include "host/modal_runner.h"
#include "host/text.h"
#include "host/transaction_guard.h"
#include "host/typed_reads.h"
#include "xref/attach_dialog.h"
#include "xref/attach_host.h"
#include "xref/file_check.h"
#include "xref/file_selection.h"
#include "xref/new_definitions.h"

#include <QApplication>
#include <QDir>
#include <QScreen>

namespace {

// Makes the definition and the references of one run a single step of undo.
class UndoBlock {
public:
    explicit UndoBlock(OdDbDatabasePtr changed)
        : database(std::move(changed)), wasStarted(database->isUndoBlockStarted()) {
        if (!wasStarted)
            database->blockUndoRecording(true);
    }
    ~UndoBlock() {
        if (!wasStarted)
            database->blockUndoRecording(false);
    }
    UndoBlock(const UndoBlock&) = delete;
    UndoBlock& operator=(const UndoBlock&) = delete;

private:
    OdDbDatabasePtr database;
    bool wasStarted;
};

CXStringW joinedPaths(QStringList files) {
    for (QString& file : files)
        file = QDir::toNativeSeparators(file);
    return hostqt::cxStringW(files.join(QLatin1Char(';')));
}

// Moves the window behind the dialog, not the dialog: that is meant.
void centreOnScreen(QWidget* window) {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (!window || !screen)
        return;
    const QSize room = screen->geometry().size();
    window->move((room.width() - window->width()) / 2, (room.height() - window->height()) / 2);
}

void showDialog(QDialog& dialog) {
    dialog.setModal(true);
    dialog.setWindowFlags(Qt::Window | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowCloseButtonHint);
    dialog.setFocus(Qt::OtherFocusReason);
    dialog.setWindowTitle(OdQCmd_hostAttachExternalReferenceCommand::tr("External reference"));
    runModal(dialog);
}

void keepOrTakeBack(bool keep, DbTransactionGuard& guard) {
    if (!keep)
        return guard.abort();
    eraseUnusedDefinitions();
    guard.commit();
}

// From the host's own prompts, or else from the file dialog.
struct ChosenFiles {
    explicit ChosenFiles(QWidget* parent) {
        std::vector<OdString> typed;
        const Ref<IAttachFiles> prompts = appService<IAttachFiles>();
        byPrompts = prompts && prompts->askForFiles(typed);
        for (const OdString& file : typed)
            paths << hostqt::qString(file);
        if (!byPrompts)
            paths = selectXRefFiles(parent, true);
    }
    QStringList paths;
    bool byPrompts = false;
};

QStringList filesToShow(const QStringList& chosen) {
    return hasHabit(DialogHabit::BadFilesRefusedAtOnce) ? attachableOf(chosen) : chosen;
}

} // namespace

int OdQCmd_hostAttachExternalReferenceCommand::Run(IParam*) {
    QWidget* const parent = QApplication::topLevelWidgets().value(0);
    const ChosenFiles files(parent);
    if (files.paths.isEmpty())
        return 0;
    const NewDefinitionsScope newDefinitions;
    const OdDbDatabasePtr database = attach::database();
    const UndoBlock undoBlock(database);
    DbTransactionGuard guard(database);
    guard.begin();
    const AbortAtEnd abortAtEnd(guard);
    const QStringList paths = filesToShow(files.paths);
    if (paths.isEmpty())
        return 0;
    const Ref<IParam> params = Ref<IParam>::take(new_MemParam());
    writeValue(params.get(), "PATH", joinedPaths(paths));
    hostInsertExternalReferenceDialog dialog(parent, params.get());
    if (!dialog.initialized)
        return 0;
    if (files.byPrompts) {
        dialog.onOK();
    } else {
        centreOnScreen(parent);
        showDialog(dialog);
    }
    keepOrTakeBack(dialog.result() != 0, guard);
    return 0;
}
