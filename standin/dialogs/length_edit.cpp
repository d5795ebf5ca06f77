// Text and number of a length.
#include "standin/dialogs/length_edit.h"

#include <QLocale>
#include <cmath>

namespace standin {

namespace {

std::optional<double> numberIn(const QString& text) {
    bool isNumber = false;
    const double value =
        QLocale::c().toDouble(text.trimmed().replace(QLatin1Char(','), QLatin1Char('.')), &isNumber);
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace

LengthEdit::LengthEdit(QWidget* parent) : QLineEdit(parent) {
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { exact = numberIn(text); });
}

QString LengthEdit::shown(double value) {
    QString text = QString::number(value, 'f', 4);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QStringLiteral("-0") ? QStringLiteral("0") : text;
}

void LengthEdit::setLength(double value) {
    exact = std::isfinite(value) ? std::optional(value) : std::nullopt;
    setText(shown(value));
}

void LengthEdit::convert(double factor) {
    // To a thousandth of a micrometre: the noise of multiplying to and fro goes, the length stays.
    if (exact)
        setLength(std::round(*exact * factor * 1e6) / 1e6);
}

} // namespace standin

#include "moc_length_edit.cpp"
