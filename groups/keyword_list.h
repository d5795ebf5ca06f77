// The keywords of a prompt as the bracket of its text shows them.
#pragma once

#include <QStringList>

// A source text holds local words, '_', then global words. This is the local part, trimmed.
QString localKeywords(const QString& source);
// The same without a leading "Kwrd:".
QString localKeywordsWithoutMark(const QString& source);
// The words, each at its first place only.
QStringList keywordWords(const QString& localPart);
// The words with "?" moved to the front when it is among them.
QStringList keywordWordsHelpFirst(const QString& localPart);
// The words without hidden abbreviations and the mark '_'.
QStringList shownKeywordWords(const QString& localPart);
// A bracket's content.
QString keywordBracket(const QStringList& words);
