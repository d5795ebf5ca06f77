// Puts search marks into the text of a label and takes them out again.
#include "options/pages/search/search_marks.h"

#include <QRegularExpression>

SearchMark::SearchMark(const QString& background, const QString& foreground)
    : opening("<span style=\"background-color: " + background + "\"><font color=\"" + foreground + "\">"),
      closing(QStringLiteral("</font></span>")) {}

QString SearchMark::around(const QString& text) const { return opening + text + closing; }

QString SearchMark::aroundMatches(const QString& text, const QRegularExpression& expression) const {
    QString marked = text;
    int shift = 0;
    QRegularExpressionMatchIterator matches = expression.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        marked.replace(match.capturedStart() + shift, match.capturedLength(), around(match.captured()));
        shift += marked.size() - text.size(); // meant: the growth so far, not that of this mark alone
    }
    return marked;
}

void SearchMark::remove(QString& text) const {
    text.remove(opening);
    text.remove(closing);
}

void SearchMark::clear(QString& text) const {
    text.remove(closing);
    text.remove(opening);
}
