#include "tests/support/mixed_drawing.h"

#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/polyline.h"
#include "sdk/db/text.h"

namespace {

OdSmartPtr<OdDbEntity> polylineAt(const OdGePoint3d& place) {
    const OdDbPolylinePtr polyline(new OdDbPolyline);
    const auto corner = [&](double x, double y) { return OdGePoint3d(place.x + x, place.y + y, 0); };
    polyline->setVertices({{corner(0, 0), 0}, {corner(6, 0), 0.5}, {corner(6, 5), 0}, {corner(0, 5), -0.4}});
    polyline->setClosed(true);
    return polyline;
}

OdDbEntityPtr lineAt(const OdGePoint3d& place) {
    const OdDbLinePtr line(new OdDbLine);
    line->setStartPoint(place);
    line->setEndPoint({place.x + 9, place.y + 7, 0});
    return line;
}

OdDbEntityPtr circleAt(const OdGePoint3d& place, int number) {
    const OdDbCirclePtr circle(new OdDbCircle);
    circle->setCenter(place);
    circle->setRadius(3 + number % 3);
    return circle;
}

OdDbEntityPtr arcAt(const OdGePoint3d& place) {
    const OdDbArcPtr arc(new OdDbArc);
    arc->setCenter(place);
    arc->setRadius(4);
    arc->setEndAngle(2);
    return arc;
}

OdDbEntityPtr textAt(const OdGePoint3d& place, int number) {
    const OdDbTextPtr text(new OdDbText);
    text->setPosition(place);
    text->setHeight(2.5);
    text->setTextString(OdString(L"No. ") + std::to_wstring(number % 1000).c_str());
    return text;
}

OdDbEntityPtr entityAt(int number) {
    const OdGePoint3d place(number % kMixedColumns * 10.0, number / kMixedColumns * 8.0, 0);
    const int kind = number % 20;
    if (kind < 10)
        return lineAt(place);
    if (kind < 14)
        return circleAt(place, number);
    if (kind < 17)
        return polylineAt(place);
    return kind < 19 ? arcAt(place) : textAt(place, number);
}

} // namespace

OdDbDatabasePtr mixedDrawing(int count) {
    const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    const auto space =
        odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    for (int i = 0; i < count; ++i) {
        const OdDbEntityPtr entity = entityAt(i);
        entity->setColorIndex(i % 7 + 1);
        space->appendOdDbEntity(entity.get());
    }
    return drawing;
}
