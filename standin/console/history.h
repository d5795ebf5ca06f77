// The lines typed so far, as the arrow keys walk through them.
#pragma once

#include <QStringList>

namespace standin {

class CommandHistory {
public:
    void setLimit(int count);      // 0 remembers nothing
    void add(const QString& line); // not an empty one, nor the last one once more; the walk starts anew
    // The older or newer line beginning with what was typed when the walk began; at the newer end that text
    // itself. At the older end the walk stays.
    QString older(const QString& typed);
    QString newer(const QString& typed);
    const QStringList& all() const { return lines; }

private:
    void begin(const QString& typed);
    QStringList lines;
    QString beginning;
    int position = -1; // -1: no walk
    int limit = 100;
};

} // namespace standin
