#include "standin/display/letters.h"

#include <QCache>
#include <QFont>
#include <QFontMetricsF>
#include <QTransform>

namespace standin {

namespace {

const int fontSize = 100; // large, so that the outlines are exact
const int cachedTexts = 20000;

QFont drawingFont() {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(fontSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

Letters* makeLetters(const QString& text) {
    const QFont font = drawingFont();
    const QFontMetricsF metrics(font);
    const double size = 1 / metrics.capHeight();
    QPainterPath path;
    path.addText(0, 0, font, text);
    return new Letters{QTransform::fromScale(size, -size).map(path), metrics.horizontalAdvance(text) * size};
}

} // namespace

const Letters& lettersOf(const QString& text) {
    static QCache<QString, Letters> made(cachedTexts);
    Letters* found = made.object(text);
    if (!found) {
        found = makeLetters(text);
        made.insert(text, found);
    }
    return *found;
}

} // namespace standin
