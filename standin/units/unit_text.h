// Lengths and angles as text, in the unit styles of the drawing. The decimal point is a point in every
// locale.
#pragma once

#include <QString>
#include <optional>

namespace standin {

// Values of LUNITS and AUNITS.
enum LengthStyle { kScientific = 1, kDecimal = 2, kEngineering = 3, kArchitectural = 4, kFractional = 5 };
enum AngleStyle { kDegrees = 0, kDegreesMinutesSeconds = 1, kGradians = 2, kRadians = 3, kSurveyor = 4 };

struct LengthUnits {
    int style = kDecimal;
    int precision = 4; // decimal places, or the power of two of the smallest fraction
};
struct AngleUnits {
    int style = kDegrees;
    double base = 0; // direction of angle 0, in radians
    bool clockwise = false;
    int precision = 0; // decimal places; in minutes and seconds 1 and 2 are minutes, 3 and 4 seconds
};

// Numbers, fractions as 3/4 or 1-3/4, and in the engineering and architectural styles feet and inches as
// 5'2-1/2". Null when the text is no length.
std::optional<double> lengthFromText(const QString& text, int style);
QString lengthText(double value, const LengthUnits& units);
// Without the zeros behind the last decimal that says something.
QString withoutZeroTail(QString text);
// The shortest decimal, without an exponent, that reads as this very number.
QString plainNumberText(double value);

// Radians counter-clockwise from the X axis. Read in the style given or with a mark of its own: 45d30'15",
// 50g, 1.2r, N45dE. Null when the text is no angle.
std::optional<double> angleFromText(const QString& text, const AngleUnits& units);

// Radians counter-clockwise from the X axis, written as it is read: 45°, 45°30'15", 50g, 1.2r, N45°E.
QString angleText(double radians, const AngleUnits& units);

// The units that the current drawing's variables tell.
LengthUnits currentLengthUnits();
AngleUnits currentAngleUnits();

} // namespace standin
