// Blocks of a drawing as the attach command looks at them.
#pragma once

#include "sdk/db/block_table.h"

#include <QString>

OdDbBlockTablePtr blockTableOf(const OdDbDatabasePtr& database);
// Whether two paths name one file: they differ in nothing but case, and are not two files that both exist.
bool isSameFile(const OdString& path, const QString& native);
