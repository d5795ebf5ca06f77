// The keyword lists of prompts: "local words _ global words", where a word *X is a hidden abbreviation and a
// word in quotes may hold blanks.
#pragma once

#include <QString>
#include <QStringList>

namespace standin {

class Keywords {
public:
    enum Match { kNone = -1, kAmbiguous = -2 };
    Keywords() = default;
    explicit Keywords(const QString& list); // may begin with "Kwrd:"

    bool isEmpty() const { return localWords.isEmpty(); }
    // The number of the keyword that the answer names, counted from 0, or kNone or kAmbiguous. Case doesn't
    // count. In this order: a whole word, its capitals, the unique beginning of a word; then the hidden
    // words, with or without their star. After a leading "_" the answer is taken as a global word.
    int match(const QString& answer) const;
    // The visible local words, as a prompt shows them.
    QStringList visible() const;
    // The words that an ambiguous answer may mean.
    QStringList candidates(const QString& answer) const;

private:
    QStringList localWords, globalWords;
};

// The prompt with the keywords in the place of "%s". Without keywords the empty brackets go, with the word
// "or" before them.
QString filledPrompt(const QString& prompt, const Keywords& keywords);

} // namespace standin
