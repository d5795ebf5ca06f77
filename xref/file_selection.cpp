// The file dialog of the attach command, set up in a fixed order, and where it starts.
#include "xref/file_selection.h"

#include "host/app.h"
#include "host/modal_runner.h"
#include "host/reference_files.h"
#include "host/text.h"
#include "xref/attach_command.h"
#include "xref/attach_host.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

QString startFolder() {
    const auto files = appService<IReferenceFiles>();
    const QString folder = files ? hostqt::qString(files->startFolder(attach::database().get())) : QString();
    return folder.isEmpty() ? QStringLiteral("/") : folder;
}

QStringList chosenFiles(const QFileDialog& dialog) {
    const QStringList chosen = dialog.selectedFiles();
    if (const auto files = appService<IReferenceFiles>(); files && !chosen.isEmpty())
        files->chosenIn(hostqt::cxStringW(QFileInfo(chosen.first()).absolutePath()).c_str());
    return chosen;
}

} // namespace

QStringList selectXRefFiles(QWidget* parent, bool multiple) {
    using Command = OdQCmd_hostAttachExternalReferenceCommand;
    QFileDialog dialog(parent, Command::tr("External Reference"), QString(),
                       Command::tr("Drawing (*.dwg;);;Standards (*.dws;);;Drawing Template (*.dwt)"));
    // Replaces the three filters at once, on purpose.
    dialog.setNameFilter(Command::tr("Drawing (*.dwg;)"));
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setModal(true);
    dialog.setDirectory(startFolder());
    dialog.setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
    dialog.setFileMode(multiple ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    return runModal(dialog) == QDialog::Accepted ? chosenFiles(dialog) : QStringList();
}
