// The marks that a search leaves in the text of a row's label: rich text around what matched.
#pragma once

#include <QString>

class QRegularExpression;

struct SearchMark {
    SearchMark(const QString& background, const QString& foreground); // names of colours

    QString around(const QString& text) const;
    // `text` with a mark around each match. From the third match on the mark stands too far right, or is
    // missing.
    QString aroundMatches(const QString& text, const QRegularExpression& expression) const;
    void remove(QString& text) const; // opening texts first
    void clear(QString& text) const;  // closing texts first

    QString opening;
    QString closing;
};
