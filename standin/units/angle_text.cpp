// Angles as text and back: degrees, gradians, radians and the surveyor's quadrants.
#include "standin/units/unit_text.h"

#include <QRegularExpression>
#include <cmath>

namespace standin {

namespace {

const double pi = 3.14159265358979323846;

std::optional<double> plainNumber(const QString& text) {
    bool read = false;
    const double value = text.toDouble(&read);
    return read && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

// 45, 45d, 45d30', 45d30'15.5" with an optional sign; in degrees.
std::optional<double> degrees(const QString& text) {
    static const QRegularExpression pattern(
        QStringLiteral(R"~(^([+-]?)(\d+\.?\d*|\.\d+)[d°](?:(\d+\.?\d*)')?(?:(\d+\.?\d*)")?$)~"),
        QRegularExpression::CaseInsensitiveOption);
    const auto parts = pattern.match(text);
    if (!parts.hasMatch())
        return plainNumber(text);
    const double value = parts.captured(2).toDouble() + parts.captured(3).toDouble() / 60 +
                         parts.captured(4).toDouble() / 3600;
    return parts.captured(1) == QLatin1String("-") ? -value : value;
}

// N45dE: from north or south towards east or west; in radians from the X axis.
std::optional<double> surveyorAngle(const QString& text) {
    static const QRegularExpression pattern(QStringLiteral("^([NS])(.+)([EW])$"),
                                            QRegularExpression::CaseInsensitiveOption);
    const auto parts = pattern.match(text);
    const auto turn = parts.hasMatch() ? degrees(parts.captured(2)) : std::nullopt;
    if (!turn || *turn < 0 || *turn > 90)
        return std::nullopt;
    const bool north = parts.captured(1).toUpper() == QLatin1String("N");
    const bool east = parts.captured(3).toUpper() == QLatin1String("E");
    const double start = north ? 90 : 270;
    return (start + (north == east ? -*turn : *turn)) * pi / 180;
}

std::optional<double> marked(const QString& text, QChar mark, double unit) {
    if (!text.endsWith(mark, Qt::CaseInsensitive))
        return std::nullopt;
    const auto value = plainNumber(text.chopped(1));
    return value ? std::optional<double>(*value * unit) : std::nullopt;
}

// The angle as written, in radians, before the drawing's base and direction are applied.
std::optional<double> writtenAngle(const QString& text, int style) {
    if (const auto gradians = marked(text, QLatin1Char('g'), pi / 200))
        return gradians;
    if (const auto radians = marked(text, QLatin1Char('r'), 1))
        return radians;
    const auto plain = plainNumber(text);
    if (plain && style == kGradians)
        return *plain * pi / 200;
    if (plain && style == kRadians)
        return plain;
    const auto value = degrees(text);
    return value ? std::optional<double>(*value * pi / 180) : std::nullopt;
}

} // namespace

std::optional<double> angleFromText(const QString& text, const AngleUnits& units) {
    const QString trimmed = text.trimmed();
    if (const auto absolute = surveyorAngle(trimmed))
        return absolute;
    const auto written = writtenAngle(trimmed, units.style);
    if (!written)
        return std::nullopt;
    return units.base + (units.clockwise ? -*written : *written);
}

} // namespace standin
