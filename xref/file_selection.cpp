// The file dialog of the attach command, set up in the order that it is told.
#include "xref/file_selection.h"

#include "host/modal_runner.h"
#include "xref/attach_command.h"

#include <QFileDialog>

QStringList selectXRefFiles(QWidget* parent, bool multiple) {
    using Command = OdQCmd_hostAttachExternalReferenceCommand;
    QFileDialog dialog(parent, Command::tr("External Reference"), QString(),
                       Command::tr("Drawing (*.dwg;);;Standards (*.dws;);;Drawing Template (*.dwt)"));
    // Replaces the three filters at once, on purpose.
    dialog.setNameFilter(Command::tr("Drawing (*.dwg;)"));
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setModal(true);
    dialog.setDirectory(QStringLiteral("/"));
    dialog.setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
    dialog.setFileMode(multiple ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    return runModal(dialog) == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}
