// Reads cartesian, polar and relative coordinates, and writes points.
#include "standin/console/point_text.h"

#include "standin/units/unit_text.h"

#include <QStringList>
#include <cmath>

namespace standin {

namespace {

struct Offset {
    double x = 0, y = 0, z = 0;
};

std::optional<Offset> cartesian(const QStringList& parts) {
    if (parts.size() < 2 || parts.size() > 3)
        return std::nullopt;
    const int style = currentLengthUnits().style;
    double values[3] = {0, 0, 0};
    for (int i = 0; i < parts.size(); ++i) {
        const auto value = lengthFromText(parts[i], style);
        if (!value)
            return std::nullopt;
        values[i] = *value;
    }
    return Offset{values[0], values[1], values[2]};
}

std::optional<Offset> polar(const QStringList& parts) {
    const auto distance = lengthFromText(parts[0], currentLengthUnits().style);
    const auto angle = angleFromText(parts[1], currentAngleUnits());
    if (!distance || !angle)
        return std::nullopt;
    return Offset{*distance * std::cos(*angle), *distance * std::sin(*angle), 0};
}

std::optional<Offset> offsetFromText(const QString& text) {
    const QStringList polarParts = text.split(QLatin1Char('<'));
    return polarParts.size() == 2 ? polar(polarParts) : cartesian(text.split(QLatin1Char(',')));
}

} // namespace

std::optional<OdGePoint3d> pointFromText(const QString& text, const OdGePoint3d& from) {
    const QString trimmed = text.trimmed();
    const bool relative = trimmed.startsWith(QLatin1Char('@'));
    if (trimmed == QLatin1String("@"))
        return from;
    const auto offset = offsetFromText(relative ? trimmed.mid(1) : trimmed);
    if (!offset)
        return std::nullopt;
    const OdGePoint3d start = relative ? from : OdGePoint3d(0, 0, 0);
    return OdGePoint3d(start.x + offset->x, start.y + offset->y, start.z + offset->z);
}

QString pointText(const OdGePoint3d& point) {
    const LengthUnits units = currentLengthUnits();
    QString text = lengthText(point.x, units) + QLatin1Char(',') + lengthText(point.y, units);
    if (point.z != 0)
        text += QLatin1Char(',') + lengthText(point.z, units);
    return text;
}

} // namespace standin
