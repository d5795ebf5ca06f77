// Short names of commands, from a data file.
#pragma once

#include <QMap>
#include <QStringList>

namespace standin {

// Alias to command, both in capitals. A missing or faulty file gives none; `problems` then says why, with the
// file and the line.
QMap<QString, QString> readAliases(const QString& path, QStringList* problems);

} // namespace standin
