#include "standin/display/unshown.h"

#include "sdk/rx/wide_text.h"
#include "standin/display/kinds.h"

#include <QCoreApplication>
#include <algorithm>

namespace standin {

namespace {

const std::size_t mostNamed = 5; // objects that are cut off

QString tr(const char* text) { return QCoreApplication::translate("Unshown", text); }

QString nameOf(const OdDbObjectId& id) {
    const auto entity = odrxQuery<OdDbEntity>(id.openObject(OdDb::kForRead, true).get());
    const QString kind = entity.isNull() ? QString() : QString::fromStdString(std::string(kindName(*entity)));
    return kind + QLatin1Char(' ') + odQString(id.getHandle().ascii().wide());
}

QString cutNotice(const std::vector<OdDbObjectId>& cut, const QString& one, const QString& many) {
    QStringList names;
    for (std::size_t i = 0; i < std::min(cut.size(), mostNamed); ++i)
        names << nameOf(cut[i]);
    if (cut.size() > mostNamed)
        names << tr("and %1 more").arg(cut.size() - mostNamed);
    return (cut.size() == 1 ? one : many).arg(cut.size()).arg(names.join(QLatin1String(", ")));
}

} // namespace

void Unshown::addMissed(const OdDbEntity& entity) {
    if (entity.objectId().isNull() || seen.insert(entity.objectId()).second)
        ++missed[std::string(kindName(entity))];
}

QStringList Unshown::notices() const {
    QStringList lines;
    if (!missed.empty())
        lines << missedNotice();
    if (!tooLarge.empty())
        lines << cutNotice(tooLarge, tr("%1 object has too many parts and is shown only in part: %2."),
                           tr("%1 objects have too many parts and are shown only in part: %2."));
    if (!crowdedOut.empty())
        lines << cutNotice(
            crowdedOut, tr("The drawing has too many parts in all; %1 object is shown only in part: %2."),
            tr("The drawing has too many parts in all; %1 objects are shown only in part: %2."));
    return lines;
}

QString Unshown::missedNotice() const {
    std::vector<std::pair<int, QString>> kinds;
    int all = 0;
    for (const auto& [name, count] : missed) {
        kinds.emplace_back(-count, QString::fromStdString(name));
        all += count;
    }
    std::sort(kinds.begin(), kinds.end());
    QStringList parts;
    for (const auto& [count, name] : kinds)
        parts << QStringLiteral("%1 %2").arg(-count).arg(name);
    return (all == 1 ? tr("%1 object is not shown: %2.") : tr("%1 objects are not shown: %2."))
        .arg(all)
        .arg(parts.join(QLatin1String(", ")));
}

} // namespace standin
