// Lengths as text and back: decimal, scientific, feet and inches, fractions.
#include "standin/units/unit_text.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>
#include <numeric>

namespace standin {

namespace {

const double inchesPerFoot = 12.0;

std::optional<double> finite(double value) {
    return std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

// 2, 2.5e1, 3/4, 1-3/4 and 1 3/4, without a sign.
std::optional<double> unsignedNumber(const QString& text) {
    static const QRegularExpression decimal(QStringLiteral(R"(^(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?$)"));
    static const QRegularExpression fraction(QStringLiteral(R"(^(?:(\d+)[- ])?(\d+)/(\d+)$)"));
    if (decimal.match(text).hasMatch())
        return finite(text.toDouble());
    const auto parts = fraction.match(text);
    if (!parts.hasMatch() || parts.captured(3).toDouble() == 0)
        return std::nullopt;
    return finite(parts.captured(1).toDouble() + parts.captured(2).toDouble() / parts.captured(3).toDouble());
}

// 5'2-1/2", 5', 2" and 5'-2; the value is in inches.
std::optional<double> feetAndInches(const QString& text) {
    const int mark = text.indexOf(QLatin1Char('\''));
    QString inches = text.mid(mark + 1);
    if (inches.endsWith(QLatin1Char('"')))
        inches.chop(1);
    if (mark < 0)
        return unsignedNumber(inches);
    const auto feet = unsignedNumber(text.left(mark));
    if (inches.startsWith(QLatin1Char('-')))
        inches.remove(0, 1);
    const auto rest = inches.isEmpty() ? std::optional<double>(0) : unsignedNumber(inches);
    return feet && rest ? finite(*feet * inchesPerFoot + *rest) : std::nullopt;
}

QString fractionText(double value, int precision) {
    const long long parts = 1LL << precision;
    const long long count = std::llround(value * static_cast<double>(parts));
    const long long whole = count / parts, rest = count % parts;
    if (rest == 0)
        return QString::number(whole);
    const long long common = std::gcd(rest, parts);
    const QString fraction = QStringLiteral("%1/%2").arg(rest / common).arg(parts / common);
    return whole ? QStringLiteral("%1-%2").arg(whole).arg(fraction) : fraction;
}

// Rounded before it is split, so that twelve inches are the next foot.
double roundedTo(double value, double parts) { return std::round(value * parts) / parts; }

// The inches are written even if there are none: the hyphen behind the feet is no sign.
QString feetText(double value, const QString& inches) {
    return QStringLiteral("%1'-%2\"").arg(std::floor(value / inchesPerFoot), 0, 'f', 0).arg(inches);
}

QString engineeringText(double value, int precision) {
    const double rounded = roundedTo(value, std::pow(10, precision));
    return feetText(rounded,
                    withoutZeroTail(QString::number(std::fmod(rounded, inchesPerFoot), 'f', precision)));
}

QString architecturalText(double value, int precision) {
    const double rounded = roundedTo(value, std::exp2(precision));
    const double inches = std::fmod(rounded, inchesPerFoot);
    const QString text = fractionText(inches, precision);
    return feetText(rounded, inches > 0 && inches < 1 ? QStringLiteral("0-") + text : text);
}

// Beyond this the digits say nothing any more, and fractions can't be counted.
const double greatestWrittenOut = 1e15;

QString unsignedText(double value, const LengthUnits& units) {
    const bool isWrittenOut = value < greatestWrittenOut;
    switch (isWrittenOut ? units.style : kScientific) {
    case kScientific:
        return QString::number(value, 'E', units.precision);
    case kEngineering:
        return engineeringText(value, units.precision);
    case kArchitectural:
        return architecturalText(value, units.precision);
    case kFractional:
        return fractionText(value, units.precision);
    default:
        return withoutZeroTail(QString::number(value, 'f', units.precision));
    }
}

} // namespace

QString withoutZeroTail(QString text) {
    if (!text.contains(QLatin1Char('.')))
        return text;
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

std::optional<double> lengthFromText(const QString& text, int style) {
    QString rest = text.trimmed();
    const bool negative = rest.startsWith(QLatin1Char('-'));
    if (negative || rest.startsWith(QLatin1Char('+')))
        rest.remove(0, 1);
    const bool feetStyle = style == kEngineering || style == kArchitectural;
    const auto value = feetStyle ? feetAndInches(rest) : unsignedNumber(rest);
    return value && negative ? std::optional<double>(-*value) : value;
}

QString lengthText(double value, const LengthUnits& units) {
    const QString text = unsignedText(std::fabs(value), units);
    const bool zero = lengthFromText(text, units.style).value_or(1) == 0;
    return value < 0 && !zero ? QLatin1Char('-') + text : text;
}

QString plainNumberText(double value) { return QString::number(value, 'f', QLocale::FloatingPointShortest); }

} // namespace standin
