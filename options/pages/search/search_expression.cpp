// Turns the text of the search box into an expression.
#include "options/pages/search/search_expression.h"

namespace {

const QLatin1String kBoundary("\\b");
const QLatin1String kLetters("[\\p{L}]*");
const int kEscapedStarLength = 2;

// A star only inside joins two parts. With any other number of parts it is meant to be a star, and the word
// boundaries are meant to be missing.
QString patternWithInnerStar(const QString& text, const QString& escaped) {
    const QStringList parts = text.split('*', Qt::SkipEmptyParts);
    if (parts.size() != 2)
        return escaped;
    return kBoundary + QRegularExpression::escape(parts[0]) + kLetters +
           QRegularExpression::escape(parts[1]) + kBoundary;
}

QString pattern(const QString& text) {
    QString escaped = QRegularExpression::escape(text);
    if (!text.contains('*'))
        return kBoundary + escaped + kBoundary;
    const bool atStart = text.startsWith('*');
    const bool atEnd = text.endsWith('*');
    if (!atStart && !atEnd)
        return patternWithInnerStar(text, escaped);
    if (atStart)
        escaped = escaped.mid(kEscapedStarLength);
    if (atEnd)
        escaped.chop(kEscapedStarLength);
    return kBoundary + (atStart ? kLetters : QLatin1String()) + escaped +
           (atEnd ? kLetters : QLatin1String()) + kBoundary;
}

} // namespace

QRegularExpression buildSearchExpression(const QString& text) {
    const QString withWildcards = pattern(text).replace(QStringLiteral("\\?"), QStringLiteral("."));
    return QRegularExpression(withWildcards, QRegularExpression::CaseInsensitiveOption |
                                                 QRegularExpression::UseUnicodePropertiesOption);
}
