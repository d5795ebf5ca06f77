// The row kinds that the option data can name.
#pragma once

#include <QString>

// The number of a `Type` text, compared with its case; a text that names no kind gives the plain section row.
int nodeTypeNumber(const QString& type);
