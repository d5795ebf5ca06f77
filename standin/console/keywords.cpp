// Reads keyword lists and matches what was typed against them: whole words first, then capitals, then
// beginnings.
#include "standin/console/keywords.h"

#include <QRegularExpression>
#include <algorithm>

namespace standin {

namespace {

bool isHidden(const QString& word) { return word.size() > 1 && word.startsWith(QLatin1Char('*')); }

QString capitalsOf(const QString& word) {
    QString result;
    std::copy_if(word.begin(), word.end(), std::back_inserter(result), [](QChar c) { return c.isUpper(); });
    return result;
}

bool same(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

template <class Fits> QList<int> numbersOf(const QStringList& words, Fits fits) {
    QList<int> result;
    for (int i = 0; i < words.size(); ++i)
        if (fits(words[i]))
            result.append(i);
    return result;
}

QList<int> beginningWith(const QStringList& words, const QString& answer) {
    return numbersOf(words, [&](const QString& word) {
        return !isHidden(word) && word.startsWith(answer, Qt::CaseInsensitive);
    });
}

// Of several words with that beginning, the one whose capitals are typed in full.
int byBeginning(const QStringList& words, const QString& answer) {
    const QList<int> found = beginningWith(words, answer);
    if (found.size() == 1)
        return found.first();
    QList<int> complete;
    for (const int number : found) {
        const QString capitals = capitalsOf(words[number]);
        if (!capitals.isEmpty() && answer.startsWith(capitals, Qt::CaseInsensitive))
            complete.append(number);
    }
    if (complete.size() == 1)
        return complete.first();
    return found.isEmpty() ? int{Keywords::kNone} : int{Keywords::kAmbiguous};
}

int matchIn(const QStringList& words, const QString& answer) {
    const auto whole =
        numbersOf(words, [&](const QString& word) { return !isHidden(word) && same(word, answer); });
    if (!whole.isEmpty())
        return whole.first();
    const auto byCapitals = numbersOf(
        words, [&](const QString& word) { return !isHidden(word) && same(capitalsOf(word), answer); });
    if (!byCapitals.isEmpty())
        return byCapitals.first();
    const int begun = byBeginning(words, answer);
    if (begun != Keywords::kNone)
        return begun;
    const auto hidden = numbersOf(words, [&](const QString& word) {
        return isHidden(word) && (same(word, answer) || same(word.mid(1), answer));
    });
    return hidden.isEmpty() ? int{Keywords::kNone} : hidden.first();
}

QStringList wordsOf(const QString& list) {
    static const QRegularExpression word(QStringLiteral("\"([^\"]*)\"|(\\S+)"));
    QStringList result;
    for (auto found = word.globalMatch(list); found.hasNext();) {
        const auto match = found.next();
        result.append(match.captured(match.capturedLength(2) > 0 ? 2 : 1));
    }
    return result;
}

QString withoutQuotes(const QString& text) {
    const QString trimmed = text.trimmed();
    const bool quoted =
        trimmed.size() > 1 && trimmed.startsWith(QLatin1Char('"')) && trimmed.endsWith(QLatin1Char('"'));
    return quoted ? trimmed.mid(1, trimmed.size() - 2) : trimmed;
}

} // namespace

Keywords::Keywords(const QString& list) {
    const QString prefix = QStringLiteral("Kwrd:");
    const QStringList words = wordsOf(list.startsWith(prefix) ? list.mid(prefix.size()) : list);
    const int separator = words.indexOf(QStringLiteral("_"));
    localWords = words.mid(0, separator);
    globalWords = separator < 0 ? localWords : words.mid(separator + 1);
}

int Keywords::match(const QString& answer) const {
    const QString typed = withoutQuotes(answer);
    if (typed.isEmpty())
        return kNone;
    if (typed.size() > 1 && typed.startsWith(QLatin1Char('_')))
        return matchIn(globalWords, typed.mid(1));
    return matchIn(localWords, typed);
}

QStringList Keywords::visible() const {
    QStringList result;
    std::copy_if(localWords.begin(), localWords.end(), std::back_inserter(result),
                 [](const QString& word) { return !isHidden(word); });
    return result;
}

QStringList Keywords::candidates(const QString& answer) const {
    QStringList result;
    for (const int number : beginningWith(localWords, withoutQuotes(answer)))
        result.append(localWords[number]);
    return result;
}

QString filledPrompt(const QString& prompt, const Keywords& keywords) {
    const QStringList visible = keywords.visible();
    QString result = prompt;
    if (visible.isEmpty())
        return result.remove(QRegularExpression(QStringLiteral(R"((,?\s+or)?\s*\[%s\])")));
    return result.replace(QStringLiteral("%s"), visible.join(QLatin1Char('/')));
}

} // namespace standin
