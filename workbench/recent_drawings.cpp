#include "workbench/recent_drawings.h"

#include "host/text.h"
#include "host/typed_reads.h"

#include <QFileInfo>

namespace workbench {

namespace {

const int most = 8;
const char* const sectionName = "RecentDrawings";

QByteArray keyOf(int place) { return "File" + QByteArray::number(place); }

QStringList stored(IParam* profile) {
    const Ref<IParam> section = openChild(profile, sectionName);
    QStringList paths;
    CXStringW path;
    for (int i = 0; i < most && readValue(section.get(), keyOf(i).constData(), &path); ++i)
        paths.append(hostqt::qString(path));
    return paths;
}

} // namespace

QStringList recentDrawings(IParam* profile) {
    QStringList found;
    for (const QString& path : stored(profile))
        if (QFileInfo(path).isFile())
            found.append(path);
    return found;
}

void addRecentDrawing(IParam* profile, const QString& path) {
    QStringList paths = stored(profile);
    if (path.isEmpty() || paths.value(0) == path)
        return;
    paths.removeAll(path);
    paths.prepend(path);
    const Ref<IParam> section = openChild(profile, sectionName, 1);
    for (int i = 0; section && i < most && i < paths.size(); ++i)
        writeValue(section.get(), keyOf(i).constData(), paths[i].toStdWString().c_str());
}

const char* recentDrawingsPath() { return sectionName; }

} // namespace workbench
