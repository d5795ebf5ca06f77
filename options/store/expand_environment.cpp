// The expansion of stored directories. It ends for every text, also where a variable names itself.
#include "options/store/expand_environment.h"

#include "host/app.h"
#include "host/text.h"

#include <QDir>
#include <QRegularExpression>
#include <cstdlib>

namespace {

// A variable may name itself. What ends the search then counts only values that hold a percent sign: any
// other value leaves fewer of them, so that its replacement brings the search nearer to its end.
constexpr int kMostPasses = 256;
constexpr int kMostGrowth = 1 << 16; // characters

struct Bounds {
    int passesLeft = kMostPasses;
    qint64 growthLeft = kMostGrowth;
};

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

// False when the value may not be put in any more.
bool mayPutIn(const QString& value, qint64 growth, Bounds& bounds) {
    if (!value.contains(QLatin1Char('%')))
        return true;
    bounds.growthLeft -= growth;
    return bounds.growthLeft >= 0 && bounds.passesLeft-- > 0;
}

// One pass: every occurrence of the first %NAME%. False when there is none or nothing may change any more.
bool expandFirst(QString& text, Bounds& bounds) {
    static const QRegularExpression pattern(QStringLiteral("%([^%]+)%"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return false;
    const QString whole = match.captured(0);
    const QString value = variable(match.captured(1));
    const qint64 growth = qint64(text.count(whole)) * (value.size() - whole.size());
    if (!mayPutIn(value, growth, bounds))
        return false;
    text.replace(whole, value);
    return true;
}

} // namespace

QString expandEnvironment(const QString& text) {
    if (text == QStringLiteral("%HISTORY%"))
        return historyFolder();
    QString expanded = text;
    Bounds bounds;
    while (expandFirst(expanded, bounds)) {
    }
    return expanded;
}
