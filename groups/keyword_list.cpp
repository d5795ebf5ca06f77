#include "groups/keyword_list.h"

#include <QRegularExpression>

QString localKeywords(const QString& source) { return source.section(QLatin1Char('_'), 0, 0).trimmed(); }

QString localKeywordsWithoutMark(const QString& source) {
    const QLatin1String mark("Kwrd:");
    const QString local = localKeywords(source);
    return local.startsWith(mark) ? local.mid(mark.size()).trimmed() : local;
}

QStringList keywordWords(const QString& localPart) {
    QStringList words = localPart.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    words.removeDuplicates();
    return words;
}

QStringList keywordWordsHelpFirst(const QString& localPart) {
    QStringList words = keywordWords(localPart);
    const int help = words.indexOf(QStringLiteral("?"));
    if (help > 0)
        words.move(help, 0);
    return words;
}

QStringList shownKeywordWords(const QString& localPart) {
    QStringList shown;
    for (const QString& word : keywordWords(localPart))
        if (!word.startsWith(QLatin1Char('*')) && word != QLatin1String("_"))
            shown << word;
    return shown;
}

QString keywordBracket(const QStringList& words) { return words.join(QLatin1Char('/')); }
