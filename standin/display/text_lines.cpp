#include "standin/display/text_lines.h"

#include "standin/display/letters.h"

namespace standin {

QString shownText(QString text) {
    if (!text.contains(QLatin1String("%%")))
        return text;
    static const struct {
        QLatin1String code;
        QChar sign;
    } signs[] = {{QLatin1String("%%d"), QChar(0xb0)},
                 {QLatin1String("%%p"), QChar(0xb1)},
                 {QLatin1String("%%c"), QChar(0x2300)}};
    for (const auto& each : signs)
        text.replace(each.code, each.sign, Qt::CaseInsensitive);
    for (const char* code : {"%%u", "%%o"})
        text.remove(QLatin1String(code), Qt::CaseInsensitive);
    return text;
}

QStringList wrappedLines(const QString& text, double width) {
    QStringList lines;
    for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
        QString line;
        for (const QString& word : paragraph.split(QLatin1Char(' '))) {
            const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
            if (width > 0 && !line.isEmpty() && lettersOf(longer).width > width) {
                lines.append(line);
                line = word;
            } else {
                line = longer;
            }
        }
        lines.append(line);
    }
    return lines;
}

} // namespace standin
