#include "tests/standin/shapes_in_words.h"

#include "tests/support/plain_number.h"

#include <cmath>

namespace shown {

namespace {

using namespace standin;

std::string number(double value) { return plainNumber(value, 4); }

std::string place(const QPointF& point) { return " " + number(point.x()) + "," + number(point.y()); }

const char* nameOf(Shape::Kind kind) {
    switch (kind) {
    case Shape::Path:
        return "path";
    case Shape::Fill:
        return "fill";
    case Shape::Arc:
        return "arc";
    case Shape::Text:
        return "text";
    case Shape::Dot:
        return "dot";
    case Shape::Missing:
        return "missing";
    }
    return "?";
}

std::string lookOf(const Shape& shape) {
    std::string words;
    if (shape.ink != kForeground) {
        char color[16];
        std::snprintf(color, sizeof color, " #%08x", shape.ink);
        words += color;
    }
    if (shape.weight != 0)
        words += " weight " + std::to_string(shape.weight);
    if (shape.opacity != 255)
        words += " opacity " + std::to_string(shape.opacity);
    if (shape.isBold)
        words += " bold";
    if (shape.isEndless)
        words += " endless";
    if (shape.dashes) {
        words += " dashed";
        for (const double dash : *shape.dashes)
            words += " " + number(dash);
    }
    return words;
}

std::string areaOf(const Area& area) {
    std::string words = area.isSolid ? "" : " hatched";
    if (area.rule == Qt::WindingFill)
        words += " winding";
    if (!area.hatching.empty())
        words += " finest " + number(area.finest);
    for (const QLineF& line : area.hatching)
        words += " |" + place(line.p1()) + place(line.p2());
    return words;
}

} // namespace

std::string inWords(const Shape& shape) {
    std::string words = nameOf(shape.kind) + lookOf(shape);
    if (!shape.text.isEmpty())
        words += " '" + shape.text.toStdString() + "'";
    for (std::size_t i = 0, border = 0; i < shape.points.size(); ++i) {
        if (shape.area && border < shape.area->starts.size() && shape.area->starts[border] == i) {
            words += " /";
            ++border;
        }
        words += place(shape.points[i]);
    }
    return shape.area ? words + areaOf(*shape.area) : words;
}

std::string inWords(const Item& item) {
    std::string words =
        "box" + place({item.box.left, item.box.bottom}) + place({item.box.right, item.box.top});
    if (item.isEndless)
        words += " endless";
    if (item.isCut)
        words += " cut";
    if (item.reach.pixels > 0)
        words += " and " + number(item.reach.pixels) + " pixels";
    if (item.reach.ofWindow > 0)
        words += " and " + number(item.reach.ofWindow) + " of the window";
    if (item.reach.units > 0)
        words += " and " + number(item.reach.units) + " units";
    words += "\n";
    for (const Shape& shape : item.shapes)
        words += inWords(shape) + "\n";
    return words;
}

} // namespace shown
