// Paths of reference files: where a reference was found, and how a path is written relative to the drawing.
#pragma once

#include "sdk/db/block_table.h"

#include <QString>

// Numbers of the path type on their way to attachReference; those of the list in the dialog differ.
enum XRefPathType { kFullPath = 0, kRelativePath = 1, kFileNameOnly = 2 };

// The folder that relative paths start from, with its delimiter at the end; empty when the host supplies
// none.
QString relativeBase(const OdDbDatabasePtr& database);
// `target` as seen from the folder `base`; false, with `out` untouched, unless both exist.
bool relativeFilePath(const QString& base, const QString& target, QString& out);
// The file of that name in the folder of `path`. False with an empty `out` when there is no such file, and
// with `out` untouched when `path` doesn't exist.
bool siblingFilePath(const QString& path, const QString& fileName, QString& out);
// The file behind a reference, as it was found; the saved path when it was not.
OdString resolveXRefPath(const OdDbBlockTableRecordPtr& record);
// How the drawing is to write the path; the full path where a relative one is not possible.
QString savedFormOfPath(const OdDbDatabasePtr& database, const QString& path, int pathType);
