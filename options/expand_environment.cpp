// The expansion of stored directories. It ends for every text, also where a variable names itself.
#include "options/expand_environment.h"

#include "host/app.h"
#include "host/text.h"

#include <QDir>
#include <QRegularExpression>
#include <cstdlib>

namespace {

// A variable may name itself: these end the search, long after any path has been expanded.
constexpr int kMostPasses = 256;
constexpr int kMostGrowth = 1 << 16; // characters

QString historyFolder() {
    CXStringW path(appService<IAppInterior>()->rootDirectory()); // the host has to supply it
    path.AddDirDelim();
    path += CXStringW("UnsavedFiles");
    const QString folder = hostqt::qString(path);
    if (!QDir(folder).exists())
        QDir().mkdir(folder);
    return folder;
}

QString variable(const QString& name) { return QString::fromUtf8(std::getenv(name.toUtf8().constData())); }

// One pass: every occurrence of the first %NAME%. False when there is none or nothing may change any more.
bool expandFirst(QString& text, int longest) {
    static const QRegularExpression pattern(QStringLiteral("%([^%]+)%"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return false;
    const QString whole = match.captured(0);
    const QString value = variable(match.captured(1));
    const qint64 growth = qint64(text.count(whole)) * (value.size() - whole.size());
    if (value == whole || text.size() + growth > longest)
        return false;
    text.replace(whole, value);
    return true;
}

} // namespace

QString expandEnvironment(const QString& text) {
    if (text == QStringLiteral("%HISTORY%"))
        return historyFolder();
    QString expanded = text;
    int passes = 0;
    while (expandFirst(expanded, text.size() + kMostGrowth) && ++passes < kMostPasses) {
    }
    return expanded;
}
