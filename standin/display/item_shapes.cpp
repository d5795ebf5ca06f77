// The shapes of each kind of object.
#include "host/text.h"
#include "sdk/db/block_reference.h"
#include "sdk/db/curves.h"
#include "sdk/db/hatch.h"
#include "sdk/db/leader.h"
#include "sdk/db/polyline.h"
#include "sdk/db/spline.h"
#include "sdk/db/text.h"
#include "sdk/ge/bulge_arc.h"
#include "standin/display/flat.h"
#include "standin/display/item_builder.h"
#include "standin/display/text_lines.h"

#include <algorithm>
#include <cmath>

namespace standin {

namespace {

// Of a short spline so many that it is smooth when it is large, too; of an endless one no more than can be
// handled.
std::vector<OdGePoint3d> pathOf(const OdDbSpline& spline) {
    const std::size_t spans = std::max<std::size_t>(spline.curve().controls.size(), 1);
    const std::size_t pieces = std::clamp<std::size_t>(800 / spans, 12, 48);
    const std::size_t most = std::max<std::size_t>(100000 / spans, 2);
    return spline.path(static_cast<int>(std::min(pieces, most)));
}

double sweepOf(double start, double end) {
    const double sweep = std::fmod(std::fmod(end - start, 2 * M_PI) + 2 * M_PI, 2 * M_PI);
    return sweep < 1e-12 ? 2 * M_PI : sweep;
}

OdGeMatrix3d turnedTo(const OdGePoint3d& place, double rotation) {
    return OdGeMatrix3d::translation(place.asVector()) *
           OdGeMatrix3d::rotation(rotation, OdGeVector3d::kZAxis);
}

} // namespace

void ItemBuilder::addGeometry(const OdDbEntity& entity, const Place& place, const LayerLook& layer, Ink ink) {
    const OdGeMatrix3d& world = place.toWorld;
    const OdGeMatrix3d plane = world * OdGeMatrix3d::planeToWorld(entity.normal());
    const OdGeVector3d x = OdGeVector3d::kXAxis, y = OdGeVector3d::kYAxis;
    if (const auto* line = dynamic_cast<const OdDbLine*>(&entity))
        put({Shape::Path, ink, {flat(world * line->startPoint()), flat(world * line->endPoint())}, {}});
    else if (const auto* polyline = dynamic_cast<const OdDbPolylineBase*>(&entity))
        addPolyline(*polyline, world, ink);
    else if (const auto* circle = dynamic_cast<const OdDbCircle*>(&entity))
        addArc(circle->center(), x * circle->radius(), y * circle->radius(), 0, 2 * M_PI, plane, ink);
    else if (const auto* arc = dynamic_cast<const OdDbArc*>(&entity))
        addArc(arc->center(), x * arc->radius(), y * arc->radius(), arc->startAngle(),
               sweepOf(arc->startAngle(), arc->endAngle()), plane, ink);
    else if (const auto* ellipse = dynamic_cast<const OdDbEllipse*>(&entity))
        addArc(ellipse->center(), ellipse->majorAxis(), ellipse->minorAxis(), ellipse->startParam(),
               sweepOf(ellipse->startParam(), ellipse->endParam()), world, ink);
    else if (const auto* reference = dynamic_cast<const OdDbBlockReference*>(&entity))
        addReference(*reference, place, layer, ink);
    else if (const auto* definition = dynamic_cast<const OdDbAttributeDefinition*>(&entity))
        addText(*definition, definition->tag(), plane, ink);
    else if (const auto* text = dynamic_cast<const OdDbText*>(&entity))
        addText(*text, text->textString(), plane, ink);
    else if (const auto* paragraph = dynamic_cast<const OdDbMText*>(&entity))
        addMText(*paragraph, world, ink);
    else if (const auto* point = dynamic_cast<const OdDbPoint*>(&entity))
        put({Shape::Dot, ink, {flat(world * point->position())}, {}});
    else if (const auto* spline = dynamic_cast<const OdDbSpline*>(&entity))
        addPath(pathOf(*spline), world, ink);
    else if (const auto* hatch = dynamic_cast<const OdDbHatch*>(&entity))
        addHatch(*hatch, world, ink);
    else if (const auto* leader = dynamic_cast<const OdDbLeader*>(&entity))
        addLeader(*leader, world, ink);
    else
        addOther(entity, place, layer, ink);
}

// Kinds that have no class of their own, by their tags.
void ItemBuilder::addOther(const OdDbEntity& entity, const Place& place, const LayerLook& layer, Ink ink) {
    const OdString name = entity.dxfName();
    if (name == OdString(L"DIMENSION"))
        addDimension(entity, place, layer, ink);
    else if (name == OdString(L"SOLID") || name == OdString(L"TRACE"))
        addArea(entity, place.toWorld * OdGeMatrix3d::planeToWorld(entity.normal()), ink);
}

void ItemBuilder::addArc(const OdGePoint3d& center, const OdGeVector3d& zero, const OdGeVector3d& quarter,
                         double start, double sweep, const OdGeMatrix3d& matrix, Ink ink) {
    put({Shape::Arc,
         ink,
         {flat(matrix * center), flat(matrix * zero), flat(matrix * quarter), {start, sweep}},
         {}});
}

void ItemBuilder::addPath(const std::vector<OdGePoint3d>& points, const OdGeMatrix3d& toWorld, Ink ink) {
    Shape path{Shape::Path, ink, {}, {}};
    for (const OdGePoint3d& point : points)
        path.points.push_back(flat(toWorld * point));
    if (path.points.size() > 1)
        put(std::move(path));
}

// Straight runs become one path each, bulges arcs between them.
void ItemBuilder::addPolyline(const OdDbPolylineBase& polyline, const OdGeMatrix3d& toWorld, Ink ink) {
    std::vector<OdDbPolylineVertex> list = polyline.vertices();
    if (list.empty() || addWide(polyline, toWorld, ink))
        return;
    if (polyline.isClosed())
        list.push_back(list.front());
    const OdGeMatrix3d matrix = toWorld * polyline.vertexToWorld();
    Shape run{Shape::Path, ink, {flat(matrix * list.front().point)}, {}};
    for (std::size_t i = 0; i + 1 < list.size(); ++i) {
        if (const auto arc = odGeBulgeArc(list[i].point, list[i + 1].point, list[i].bulge)) {
            addArc(arc->center, arc->zero, arc->quarter, 0, arc->sweep, matrix, ink);
            if (run.points.size() > 1)
                put(run);
            run.points.clear();
        }
        run.points.push_back(flat(matrix * list[i + 1].point));
    }
    if (run.points.size() > 1 || list.size() == 1)
        put(std::move(run));
}

void ItemBuilder::addText(const OdDbText& text, const OdString& content, const OdGeMatrix3d& toWorld,
                          Ink ink) {
    const int across = text.horizontalMode(), up = text.verticalMode();
    const bool isAligned = across != 0 || up != 0;
    const bool betweenPoints = across == 3 || across == 5; // the left end is given as well
    const OdGePoint3d place = isAligned && !betweenPoints ? text.alignmentPoint() : text.position();
    const OdGeMatrix3d matrix = toWorld * turnedTo(place, text.rotation());
    const double wide = text.height() * (text.widthFactor() > 0 ? text.widthFactor() : 1);
    const QPointF before(across == 1 || across == 4 ? 0.5
                         : across == 2              ? 1
                                                    : 0,
                         up == 3                  ? 1
                         : up == 2 || across == 4 ? 0.5
                                                  : 0);
    put({Shape::Text,
         ink,
         {flat(matrix * OdGePoint3d()), flat(matrix * OdGeVector3d(wide, 0, 0)),
          flat(matrix * OdGeVector3d(0, text.height(), 0)), before},
         shownText(hostqt::qString(content))});
}

void ItemBuilder::addMText(const OdDbMText& text, const OdGeMatrix3d& toWorld, Ink ink) {
    const double height = text.textHeight();
    const QStringList lines =
        wrappedLines(hostqt::qString(text.plainText()), height > 0 ? text.width() / height : 0);
    const OdGeMatrix3d matrix = toWorld * turnedTo(text.location(), text.rotation());
    const int column = (text.attachment() - 1) % 3, row = (text.attachment() - 1) / 3;
    const double step = height * 5 / 3;
    const double total = height + step * (lines.size() - 1);
    double base = -height + total * row / 2; // of the first line
    for (const QString& line : lines) {
        put({Shape::Text,
             ink,
             {flat(matrix * OdGePoint3d(0, base, 0)),
              flat(matrix * OdGeVector3d(height, 0, 0)),
              flat(matrix * OdGeVector3d(0, height, 0)),
              {column / 2.0, 0}},
             line});
        base -= step;
    }
}

} // namespace standin
