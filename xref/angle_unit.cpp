// Reading the unit off the host's own reader of angles, which knows the unit, the base and the direction.
#include "xref/angle_unit.h"

#include "host/command_io.h"
#include "host/dialog_habits.h"

#include <QCoreApplication>
#include <QLocale>
#include <cmath>

namespace {

const double kPi = 3.14159265358979323846;

double angleOf(const wchar_t* text) {
    double value = 0;
    hostdbAngToF(text, -1, value, 3);
    return value;
}

QString tr(const char* text) {
    return QCoreApplication::translate("hostInsertExternalReferenceDialog", text);
}

bool isPlain(const AngleUnit& unit) { return unit.atZero == 0 && unit.ofOne == 1; }

} // namespace

AngleUnit AngleUnit::wanted() {
    AngleUnit unit;
    if (!hasHabit(DialogHabit::AnglesAsAtPrompts))
        return unit;
    unit.atZero = angleOf(L"0");
    unit.ofOne = angleOf(L"1") - unit.atZero;
    return unit;
}

double AngleUnit::radians(const QString& number) const { return atZero + ofOne * number.toDouble(); }

// Of a converted number, what its conversion has left behind the tenth decimal is no digit of anybody's.
QString AngleUnit::number(double radians) const {
    const double value =
        isPlain(*this) ? radians : std::round((radians - atZero) / ofOne * 1e10) / 1e10 + 0.0;
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

QString AngleUnit::name() const {
    if (!hasHabit(DialogHabit::AnglesAsAtPrompts))
        return {};
    const double size = std::fabs(ofOne);
    if (std::fabs(size - kPi / 180) < 1e-6)
        return tr("degrees");
    return std::fabs(size - kPi / 200) < 1e-6 ? tr("grads") : tr("radians");
}
