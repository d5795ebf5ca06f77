#include "workbench/commands/object_text.h"

#include "host/text.h"
#include "sdk/db/block_reference.h"
#include "sdk/db/curves.h"
#include "sdk/db/database.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "sdk/db/polyline.h"
#include "sdk/db/text.h"
#include "standin/console/point_text.h"
#include "standin/units/unit_text.h"

#include <QCoreApplication>

using hostqt::qString;
using standin::pointText;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("ListCommand", text); }

QString length(double value) { return standin::lengthText(value, standin::currentLengthUnits()); }
QString number(double value) { return QString::number(value, 'g', 10); } // without a unit
QString angle(double radians) { return standin::angleText(radians, standin::currentAngleUnits()); }

QString colorText(const OdDbEntity& entity) {
    if (entity.hasTrueColor())
        return QStringLiteral("#%1").arg(entity.trueColor(), 6, 16, QLatin1Char('0'));
    if (entity.colorIndex() == OdDbEntity::kByLayer)
        return tr("by layer");
    return entity.colorIndex() == OdDbEntity::kByBlock ? tr("by block")
                                                       : QString::number(entity.colorIndex());
}

QString lineText(const OdDbLine& line) {
    return tr("from %1 to %2, length %3")
        .arg(pointText(line.startPoint()), pointText(line.endPoint()),
             length(line.startPoint().distanceTo(line.endPoint())));
}

QString circleText(const OdDbCircle& circle) {
    return tr("centre %1, radius %2").arg(pointText(circle.center()), length(circle.radius()));
}

QString arcText(const OdDbArc& arc) {
    return tr("centre %1, radius %2, from %3 to %4")
        .arg(pointText(arc.center()), length(arc.radius()), angle(arc.startAngle()), angle(arc.endAngle()));
}

QString polylineText(const OdDbPolylineBase& polyline) {
    return (polyline.isClosed() ? tr("closed, %1 vertices") : tr("open, %1 vertices"))
        .arg(polyline.vertices().size());
}

QString referenceText(const OdDbBlockReference& reference) {
    const OdGeScale3d scale = reference.scaleFactors();
    return tr("block \"%1\" at %2, scale %3, %4, %5, rotation %6")
        .arg(qString(reference.blockName()), pointText(reference.position()), number(scale.sx),
             number(scale.sy), number(scale.sz), angle(reference.rotation()));
}

QString singleLineText(const OdDbText& text) {
    return tr("\"%1\" at %2, height %3")
        .arg(qString(text.textString()), pointText(text.position()), length(text.height()));
}

QString geometryText(const OdDbEntity& entity) {
    if (const auto* line = dynamic_cast<const OdDbLine*>(&entity))
        return lineText(*line);
    if (const auto* circle = dynamic_cast<const OdDbCircle*>(&entity))
        return circleText(*circle);
    if (const auto* arc = dynamic_cast<const OdDbArc*>(&entity))
        return arcText(*arc);
    if (const auto* polyline = dynamic_cast<const OdDbPolylineBase*>(&entity))
        return polylineText(*polyline);
    if (const auto* reference = dynamic_cast<const OdDbBlockReference*>(&entity))
        return referenceText(*reference);
    if (const auto* text = dynamic_cast<const OdDbText*>(&entity))
        return singleLineText(*text);
    if (const auto* point = dynamic_cast<const OdDbPoint*>(&entity))
        return tr("at %1").arg(pointText(point->position()));
    return {};
}

} // namespace

GroupNames::GroupNames(OdDbDatabase& drawing, const OdDbObjectIdArray& objects) {
    const auto groups = odrxQuery<OdDbDictionary>(drawing.getGroupDictionaryId().openObject().get());
    if (groups.isNull())
        return;
    for (const OdDbObjectId& id : objects)
        names.insert(id.getStub(), {});
    OdDbObjectIdArray members;
    for (const auto it = groups->newIterator(); !it->done(); it->next()) {
        const auto group = odrxQuery<OdDbGroup>(it->getObject().get());
        if (group.isNull())
            continue;
        group->allEntityIds(members);
        for (const OdDbObjectId& member : members) {
            const auto found = names.find(member.getStub());
            if (found != names.end())
                found->append(qString(it->name()));
        }
    }
}

QStringList objectText(OdDbObjectId id, const GroupNames& groups) {
    const auto entity = odrxQuery<OdDbEntity>(id.openObject().get());
    if (entity.isNull())
        return {};
    QStringList lines{tr("%1  handle %2  layer %3  colour %4")
                          .arg(qString(entity->dxfName()), qString(id.getHandle().ascii()),
                               qString(entity->layer()), colorText(*entity))};
    const QString geometry = geometryText(*entity);
    if (!geometry.isEmpty())
        lines.append(QStringLiteral("    ") + geometry);
    const QStringList names = groups.of(id);
    if (!names.isEmpty())
        lines.append(tr("    in group %1").arg(names.join(QStringLiteral(", "))));
    return lines;
}

} // namespace workbench
