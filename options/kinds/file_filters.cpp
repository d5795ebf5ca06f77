// The three file kinds of the option tree, as one table.
#include "options/kinds/file_filters.h"

#include "host/app.h"
#include "host/qt_ui_core.h"
#include "host/std_dirs.h"
#include "host/text.h"
#include "options/store/tree_item.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <algorithm>

namespace {

struct FileKind {
    int id;
    const char* directory; // entry of the host's standard directories
    const char* filter;
    const char* extension;
};

const FileKind fileKinds[] = {
    {kIdTemplateFiles, "TemplatesDir", QT_TRANSLATE_NOOP("Preferences", "CAD Files (*.dwt)"), ".dwt"},
    {kIdStandardFiles, "TemplatesDir", QT_TRANSLATE_NOOP("Preferences", "CAD Files (*.dws)"), ".dws"},
    {kIdLogFiles, "AppDataDir", QT_TRANSLATE_NOOP("Preferences", "Log Files (*.log)"), ".log"},
};

// The host's directory, or `fallback` when it has none for the key.
QString directoryOr(IStdDirs& directories, const char* key, const QString& fallback) {
    CKWVariant found;
    found.vt = kVtWideString; // the request for wide text
    if (!directories.GetDir(key, &found, 1)) {
        KWVariantInit(&found);
        return fallback;
    }
    if (found.vt == kVtString)
        return QString::fromLocal8Bit(static_cast<char*>(found));
    return hostqt::qString(static_cast<wchar_t*>(found));
}

bool isAllowed(const QString& file, const QStringList& extensions) {
    return std::any_of(extensions.begin(), extensions.end(), [&](const QString& extension) {
        return file.endsWith(extension, Qt::CaseInsensitive);
    });
}

} // namespace

QString fileDialogSetup(int id, QString* filter, QStringList* extensions) {
    const QString start = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    const Ref<IStdDirs> directories = appService<IStdDirs>();
    const auto* kind = std::find_if(std::begin(fileKinds), std::end(fileKinds),
                                    [id](const FileKind& known) { return known.id == id; });
    if (!directories || kind == std::end(fileKinds))
        return start;
    *filter = QCoreApplication::translate("Preferences", kind->filter);
    *extensions = QStringList(QString::fromLatin1(kind->extension));
    return directoryOr(*directories, kind->directory, start);
}

QString filterByExtension(const QStringList& files, const QStringList& extensions) {
    QStringList kept;
    for (const QString& file : files) {
        if (isAllowed(file, extensions))
            kept += file;
        else
            host_qt_ui_core::QHostMessageBox::critical(
                QCoreApplication::translate("Preferences", "Error"),
                QCoreApplication::translate("Preferences", "\"%1\" is not added because of wrong extension.")
                    .arg(file),
                EV_MB_OK);
    }
    return kept.join(QLatin1Char(';'));
}
