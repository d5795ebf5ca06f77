// The drawing that the dialog is about, and its name, asked from the host anew by each part of the dialog.
#pragma once

#include "sdk/db/database.h"

#include <QString>

OdDbDatabasePtr currentDrawing(); // null without a document
QString currentTitle();           // what the host calls the drawing; empty without a document
