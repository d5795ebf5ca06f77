#include "standin/display/letters.h"

#include <QCache>
#include <QFont>
#include <QFontMetricsF>
#include <QTransform>
#include <utility>

namespace standin {

namespace {

const int fontSize = 100; // large, so that the outlines are exact
const int cachedLetters = 300000;

QFont drawingFont(bool isBold) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(fontSize);
    font.setBold(isBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

Letters* makeLetters(const QString& text, bool isBold) {
    const QFont font = drawingFont(isBold);
    const QFontMetricsF metrics(font);
    const double size = 1 / metrics.capHeight();
    QPainterPath path;
    path.addText(0, 0, font, text);
    return new Letters{QTransform::fromScale(size, -size).map(path), metrics.horizontalAdvance(text) * size};
}

} // namespace

const Letters& lettersOf(const QString& text, bool isBold) {
    thread_local QCache<std::pair<QString, bool>, Letters> made(cachedLetters);
    if (text.size() > kMostLetters)
        return lettersOf(text.left(kMostLetters), isBold);
    Letters* found = made.object({text, isBold});
    if (!found) {
        found = makeLetters(text, isBold);
        made.insert({text, isBold}, found, text.size() + 1);
    }
    return *found;
}

} // namespace standin
