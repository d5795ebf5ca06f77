// Files that can't be attached, told of before a dialog is opened for them.
#pragma once

#include <QStringList>

// Loads the file as the reference that it may become; the definition is one of the new ones of the running
// command, and its name goes to `blockName` unless that is null. False when it can't be attached: the user
// has been told which file and why.
bool canBeAttached(const QString& path, QString* blockName = nullptr);
QStringList attachableOf(const QStringList& paths);
