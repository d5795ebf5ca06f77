#include "workbench/commands/file_questions.h"

#include "host/modal_runner.h"
#include "host/qt_ui_core.h"
#include "host/text.h"
#include "standin/console/console.h"
#include "standin/sysvars/read_variable.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("FileQuestions", text); }

QString filter() { return tr("Drawings (*.dxf);;All files (*)"); }

// A name that was copied with its quotes is the name without them.
QString withoutQuotes(QString name) {
    name = name.trimmed();
    if (name.size() > 1 && name.startsWith(QLatin1Char('"')) && name.endsWith(QLatin1Char('"')))
        name = name.mid(1, name.size() - 2);
    return name;
}

QString absolutePath(const QString& name) { return QFileInfo(withoutQuotes(name)).absoluteFilePath(); }

// A file that isn't where the program was started may lie in `folder`.
QString existingPath(const QString& name, const QString& folder) {
    const QFileInfo there(QDir(folder), withoutQuotes(name));
    const QString here = absolutePath(name);
    return !folder.isEmpty() && !QFileInfo::exists(here) && there.isFile() ? there.absoluteFilePath() : here;
}

QString withSuffix(const QString& path) {
    return QFileInfo(path).suffix().isEmpty() ? path + QStringLiteral(".dxf") : path;
}

bool isYesInBox(const QString& name, const QString& title, const QString& text,
                const QString& detail = QString()) {
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Yes | QMessageBox::No,
                    host_qt_ui_core::parentForDialog());
    box.setObjectName(name);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(detail);
    box.setDefaultButton(QMessageBox::No);
    return runModal(box) == QMessageBox::Yes;
}

} // namespace

bool FileQuestions::dialogsAreOff() {
    const OdResBufPtr value = readVariable(L"FILEDIA");
    return !value.isNull() && !value->getBool();
}

bool FileQuestions::asksOnConsole() const { return headless || dialogsAreOff(); }

// An empty text when the answer was Enter.
std::optional<QString> FileQuestions::typedName(const QString& prompt) const {
    OdString answer;
    const int result = io.getInput(prompt.toStdWString().c_str(), nullptr, kAnyText, &answer, 0);
    if (result == kInputNone)
        return QString();
    return result == kInputTyped ? std::optional<QString>(hostqt::qString(answer)) : std::nullopt;
}

std::optional<QString> FileQuestions::fileToOpen(const QString& folder) const {
    if (asksOnConsole()) {
        const auto typed = typedName(tr("Enter name of drawing to open:"));
        return typed && !typed->isEmpty() ? std::optional<QString>(existingPath(*typed, folder))
                                          : std::nullopt;
    }
    const QString chosen = QFileDialog::getOpenFileName(host_qt_ui_core::parentForDialog(),
                                                        tr("Open drawing"), folder, filter());
    return chosen.isEmpty() ? std::nullopt : std::optional<QString>(absolutePath(chosen));
}

std::optional<QStringList> FileQuestions::filesToAttach(const QString& folder) const {
    if (!asksOnConsole())
        return std::nullopt;
    const auto typed =
        typedName(tr("Enter names of drawings to attach, with ; between them, or ~ for the dialogs:"));
    if (typed && typed->trimmed() == QLatin1String("~"))
        return std::nullopt;
    QStringList files;
    for (const QString& name : typed.value_or(QString()).split(QLatin1Char(';'), Qt::SkipEmptyParts))
        files << existingPath(name, folder);
    return files;
}

std::optional<QString> FileQuestions::fileToSave(const QString& suggested, const QString& own) const {
    if (!asksOnConsole()) {
        const QString chosen = QFileDialog::getSaveFileName(host_qt_ui_core::parentForDialog(),
                                                            tr("Save drawing as"), suggested, filter());
        return chosen.isEmpty() ? std::nullopt : chosenToSave(absolutePath(chosen), own);
    }
    const auto typed = typedName(tr("Enter file name to save as <%1>:").arg(suggested));
    if (!typed)
        return std::nullopt;
    const QString path = withSuffix(absolutePath(typed->isEmpty() ? suggested : *typed));
    const bool free = path == own || !QFileInfo::exists(path);
    return free || mayReplace(path) ? std::optional<QString>(path) : std::nullopt;
}

// The dialog has asked about the name as it was typed, without the ending.
std::optional<QString> FileQuestions::chosenToSave(const QString& chosen, const QString& own) const {
    const QString path = withSuffix(chosen);
    const bool settled = path == chosen || path == own || !QFileInfo::exists(path);
    return settled || mayReplace(path) ? std::optional<QString>(path) : std::nullopt;
}

bool FileQuestions::mayReplace(const QString& path) const {
    if (!asksOnConsole())
        return isYesInBox(QStringLiteral("replaceBox"), tr("File exists"),
                          tr("%1 exists already. Replace it?").arg(path));
    return isYesOnConsole(tr("%1 exists already. Replace it? [%2] <No>:").arg(path, QStringLiteral("%s")));
}

bool FileQuestions::isYesOnConsole(const QString& prompt) const {
    return io.getInput(prompt.toStdWString().c_str(), L"Yes No _ Yes No", 0, nullptr, 0) == kInputKeyword;
}

bool FileQuestions::mayOverwriteChanged(const QString& path) const {
    if (asksOnConsole())
        return isYesOnConsole(tr("%1 was changed by another program since it was read. Overwrite? [%2] <No>:")
                                  .arg(path, QStringLiteral("%s")));
    return isYesInBox(QStringLiteral("overwriteBox"), tr("File changed by another program"),
                      tr("%1 was changed by another program since it was read. Overwrite?").arg(path));
}

bool FileQuestions::mayMakeNewer(const QString& drawing, const QStringList& leftOut) const {
    const QString reason =
        tr("%1 is a drawing of version R12, which can't hold groups or other objects.").arg(drawing);
    const QString loss =
        leftOut.isEmpty() ? QString() : tr("A newer drawing leaves out: %1.").arg(leftOut.join(", "));
    if (!loss.isEmpty())
        io.print(loss);
    if (asksOnConsole()) {
        io.print(reason);
        return isYesOnConsole(tr("Save as a newer drawing? [%s] <No>:"));
    }
    return isYesInBox(QStringLiteral("newerBox"), tr("Newer drawing"),
                      reason + QLatin1Char('\n') + tr("Save as a newer drawing?"), loss);
}

void FileQuestions::tellNotSaved(const QString& drawing, const QString& reason) const {
    if (!asksOnConsole())
        host_qt_ui_core::QHostMessageBox::critical(
            tr("Not saved"), tr("%1 could not be saved.").arg(drawing) + QStringLiteral("\n\n") + reason,
            EV_MB_OK);
}

Unsaved FileQuestions::whatOfChanges(const QString& drawing) const {
    if (!asksOnConsole())
        return whatOfChangesByDialog(drawing);
    const QString prompt = tr("Save changes to %1? [%2] <Yes>:").arg(drawing, QStringLiteral("%s"));
    switch (io.getInput(prompt.toStdWString().c_str(), L"Yes No Cancel _ Yes No Cancel", 0, nullptr, 0)) {
    case kInputNone:
    case kInputKeyword:
        return Unsaved::Save;
    case kInputKeyword + 1:
        return Unsaved::Discard;
    default:
        return Unsaved::Cancel;
    }
}

Unsaved FileQuestions::whatOfChangesByDialog(const QString& drawing) const {
    QMessageBox box(QMessageBox::Question, tr("Unsaved changes"), tr("Save changes to %1?").arg(drawing),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                    host_qt_ui_core::parentForDialog());
    box.setObjectName(QStringLiteral("unsavedBox"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    switch (runModal(box)) {
    case QMessageBox::Save:
        return Unsaved::Save;
    case QMessageBox::Discard:
        return Unsaved::Discard;
    default:
        return Unsaved::Cancel;
    }
}

} // namespace workbench
