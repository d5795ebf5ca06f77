// Keeps the typed lines and finds the next one that begins with what stands in the input line.
#include "standin/console/history.h"

namespace standin {

void CommandHistory::setLimit(int count) {
    limit = qMax(0, count);
    while (lines.size() > limit)
        lines.removeFirst();
    position = -1;
}

void CommandHistory::add(const QString& line) {
    position = -1;
    if (line.trimmed().isEmpty() || (!lines.isEmpty() && lines.last() == line))
        return;
    lines.append(line);
    setLimit(limit);
}

void CommandHistory::begin(const QString& typed) {
    if (position >= 0)
        return;
    beginning = typed;
    position = lines.size();
}

QString CommandHistory::older(const QString& typed) {
    begin(typed);
    for (int i = position - 1; i >= 0; --i)
        if (lines[i].startsWith(beginning, Qt::CaseInsensitive)) {
            position = i;
            return lines[i];
        }
    return position < lines.size() ? lines[position] : beginning;
}

QString CommandHistory::newer(const QString& typed) {
    begin(typed);
    for (int i = position + 1; i < lines.size(); ++i)
        if (lines[i].startsWith(beginning, Qt::CaseInsensitive)) {
            position = i;
            return lines[i];
        }
    position = -1;
    return beginning;
}

} // namespace standin
