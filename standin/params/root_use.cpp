// Takes the first free lock and looks whether somebody holds another one.
#include "standin/params/root_use.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSysInfo>

namespace standin {

namespace {

// More programs than these on one directory are not counted.
const int mostPrograms = 20;

QString tr(const char* sourceText) { return QCoreApplication::translate("RootUse", sourceText); }

} // namespace

RootUse::RootUse(const QString& rootDir) : root(rootDir) {
    if (rootDir.isEmpty() || !QDir().mkpath(rootDir))
        return;
    for (int i = 1; i <= mostPrograms; ++i)
        lookAt(QDir(rootDir).filePath(QStringLiteral("workbench-%1.lock").arg(i)));
}

void RootUse::lookAt(const QString& lockFile) {
    if (own && !QFileInfo::exists(lockFile))
        return;
    auto lock = std::make_unique<QLockFile>(lockFile);
    lock->setStaleLockTime(0); // a program may run for days: only one that is gone has left its lock behind
    if (!lock->tryLock())
        noteOther(*lock, lockFile);
    else if (!own)
        own = std::move(lock);
}

// In a directory that can't be written nobody can remove what was left behind, so that it says nothing.
void RootUse::noteOther(const QLockFile& lock, const QString& lockFile) {
    qint64 process = 0;
    QString host, program;
    if (lock.error() != QLockFile::LockFailedError || !QFileInfo(root).isWritable() ||
        !lock.getLockInfo(&process, &host, &program) || !text.isEmpty())
        return;
    text = tr("Another workbench is using this folder, too: %1\n"
              "The changes of both are kept. Where both change the same thing, the one that is written last "
              "stands; the other's version is kept beside the file as NAME.other-1, and you are told.")
               .arg(QDir::toNativeSeparators(root));
    if (host != QSysInfo::machineHostName())
        text += QLatin1Char('\n') + tr("It was started on %1. If it no longer runs there, remove %2.")
                                        .arg(host, QDir::toNativeSeparators(lockFile));
}

} // namespace standin
