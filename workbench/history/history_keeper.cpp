// Reasons, and the moment of keeping.
#include "workbench/history/history_keeper.h"

#include "host/app.h"
#include "host/documents.h"
#include "host/modal_runner.h"
#include "host/qt_ui_core.h"
#include "host/text.h"
#include "sdk/rx/od_error.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "workbench/commands/file_questions.h"
#include "workbench/history/history_settings.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QInputDialog>
#include <QLocale>

using namespace standin;

namespace workbench {

namespace {

// Kept as they stand here and translated where they are shown, in the context of the drawing properties.
const char* const savedReason = QT_TRANSLATE_NOOP("QWidget", "Saved");
const char* const replacedReason = QT_TRANSLATE_NOOP("QWidget", "Replaced by another drawing");

// Empty, too, when the user cancels.
QString reasonTypedInto(const QString& title, const QString& question) {
    QInputDialog input(host_qt_ui_core::parentForDialog());
    input.setObjectName(QStringLiteral("reasonBox"));
    input.setWindowTitle(title);
    input.setLabelText(question);
    input.setOkButtonText(QCoreApplication::translate("HistoryKeeper", "&OK"));
    input.setCancelButtonText(QCoreApplication::translate("HistoryKeeper", "&Cancel"));
    return runModal(input) == QDialog::Accepted ? input.textValue().trimmed() : QString();
}

} // namespace

QString reasonText(const FileVersion& version) {
    return QCoreApplication::translate("QWidget", version.reason.toUtf8().constData());
}

QString timeText(const FileVersion& version) {
    const QFileInfo file(version.file);
    return file.isFile() ? QLocale::system().toString(file.lastModified(), "dd MMMM yyyy hh:mm:ss")
                         : QCoreApplication::translate("HistoryKeeper", "the file is gone");
}

HistoryKeeper::HistoryKeeper(DocumentManager& documentManager, Console& console,
                             const FileQuestions& fileQuestions, const QString& rootDir, StoreIo storeIo)
    : documents(documentManager), io(console), files(fileQuestions), store(rootDir, std::move(storeIo)),
      registered(OdSmartPtr<HostFileHistory>(new KWFileHistoryPE(documents, store))) {
    connect(&documents, &DocumentManager::beforeSave, this, &HistoryKeeper::keepFormer);
    connect(&documents, &DocumentManager::afterSave, this, &HistoryKeeper::settleFormer);
}

std::vector<FileVersion> HistoryKeeper::versionsOf(const Document& document) const {
    return document.path().isEmpty() ? std::vector<FileVersion>() : store.versionsOf(document.path());
}

void HistoryKeeper::open(const Document& document, const FileVersion& version) {
    const QFileInfo file(version.file);
    if (!file.isFile())
        throw OdError(tr("The file of this version is gone: %1")
                          .arg(QDir::toNativeSeparators(version.file))
                          .toStdWString());
    const QString time = file.lastModified().toString(QStringLiteral("yyyy-MM-dd hh.mm.ss"));
    documents.openCopy(version.file,
                       QFileInfo(document.displayName()).completeBaseName() + QLatin1Char(' ') + time);
}

void HistoryKeeper::keepFormer(Document* document, const QString& path) {
    const HistorySettings settings = readHistorySettings(appService<IProfile>().get());
    kept.reset();
    if (settings.on && settings.maximum > 0 && QFileInfo(path).isFile())
        kept = store.add(path, reasonFor(*document, path));
}

// A file that could not be written is as it was, and has no former version.
void HistoryKeeper::settleFormer(bool saved) {
    const auto former = std::exchange(kept, std::nullopt);
    if (former && saved)
        store.settle(former->drawing, readHistorySettings(appService<IProfile>().get()).maximum);
    else if (former)
        store.takeBack(*former);
}

QString HistoryKeeper::reasonFor(const Document& document, const QString& path) const {
    const QString otherwise = QLatin1String(document.path() == path ? savedReason : replacedReason);
    if (!readHistorySettings(appService<IProfile>().get()).asksReason)
        return otherwise;
    const QString typed = typedReason(path, QCoreApplication::translate("QWidget", otherwise.toUtf8()));
    return typed.isEmpty() ? otherwise : typed;
}

// Empty when the user types none; the file is kept all the same.
QString HistoryKeeper::typedReason(const QString& path, const QString& otherwise) const {
    const QString name = QFileInfo(path).fileName();
    if (!files.asksOnConsole())
        return reasonTypedInto(tr("File version"),
                               tr("&Why is the former version of %1 kept?")
                                   .arg(QString(name).replace(QLatin1Char('&'), QLatin1String("&&"))));
    OdString answer;
    const QString prompt = tr("Reason for keeping the former version of %1 <%2>:").arg(name, otherwise);
    const int result = io.getInput(prompt.toStdWString().c_str(), nullptr, kAnyText, &answer, 0);
    return result == kInputTyped ? hostqt::qString(answer).trimmed() : QString();
}

} // namespace workbench

#include "moc_history_keeper.cpp"
