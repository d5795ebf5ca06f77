// Turns the percent signs of a stored directory into the path that they stand for.
#pragma once

#include <QString>

// "%HISTORY%" gives the folder for unsaved files, which is made if it doesn't exist. In any other text each
// %NAME% is replaced by the environment variable, or by nothing when it isn't set.
QString expandEnvironment(const QString& text);
