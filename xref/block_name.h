// Names of blocks that stand for files.
#pragma once

#include "sdk/db/block_table.h"

#include <QString>

// The text without blanks around it, with '_' for each character that a block name can't hold, and at most
// 255 characters.
QString legalBlockName(const QString& text);
// The block name for a file: from its name up to the first dot. False, with `name` untouched, when nothing is
// left of it.
bool blockNameFromFile(const QString& fileName, int, QString& name);
// The first of "name_1", "name_2", ... that the table doesn't hold.
OdString uniqueBlockName(const OdDbBlockTablePtr& table, const OdString& name);
