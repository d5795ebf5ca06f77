// The host's functions for typed lengths and angles, on the units of the current drawing.
#include "host/command_io.h"

#include "host/text.h"
#include "standin/sysvars/read_variable.h"
#include "standin/units/unit_text.h"

#include <algorithm>
#include <cmath>

namespace standin {

namespace {

const double radiansPerDegree = 3.14159265358979323846 / 180;

double drawingValue(const wchar_t* name, double otherwise) {
    const OdResBufPtr value = readVariable(name);
    return value.isNull() ? otherwise : value->getDouble();
}

} // namespace

LengthUnits currentLengthUnits() {
    LengthUnits units;
    units.style = static_cast<int>(drawingValue(L"LUNITS", units.style));
    units.precision = std::clamp(static_cast<int>(drawingValue(L"LUPREC", units.precision)), 0, 8);
    return units;
}

AngleUnits currentAngleUnits() {
    AngleUnits units;
    units.style = static_cast<int>(drawingValue(L"AUNITS", units.style));
    units.base = drawingValue(L"ANGBASE", 0) * radiansPerDegree;
    units.clockwise = drawingValue(L"ANGDIR", 0) != 0;
    units.precision = std::clamp(static_cast<int>(drawingValue(L"AUPREC", units.precision)), 0, 8);
    return units;
}

} // namespace standin

bool hostdbDisToF(const OdString& text, int unitStyle, double& value) {
    const int style = unitStyle == -1 ? standin::currentLengthUnits().style : unitStyle;
    const auto read = standin::lengthFromText(hostqt::qString(text), style);
    value = read.value_or(value);
    return read.has_value();
}

bool hostdbAngToF(const OdString& text, int unitStyle, double& value, int) {
    standin::AngleUnits units = standin::currentAngleUnits();
    if (unitStyle != -1)
        units.style = unitStyle;
    const auto read = standin::angleFromText(hostqt::qString(text), units);
    value = read.value_or(value);
    return read.has_value();
}

// Without a style of its own the text is for a field that reads plain numbers, so the units of the drawing
// are none of its business.
void hostdbRToS(double value, int unitStyle, int, OdString& text, int, int) {
    if (unitStyle == -1) {
        text = hostqt::odString(standin::plainNumberText(value));
        return;
    }
    standin::LengthUnits units = standin::currentLengthUnits();
    units.style = unitStyle;
    text = hostqt::odString(standin::lengthText(value, units));
}
