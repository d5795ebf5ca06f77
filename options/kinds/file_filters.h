// What the file rows of the option tree choose from: start folder, name filter and allowed extensions by
// `ID`.
#pragma once

#include <QStringList>

// The start folder. `filter` and `extensions` stay empty for an `ID` that isn't one of the three file kinds,
// and without the host's standard directories.
QString fileDialogSetup(int id, QString* filter, QStringList* extensions);
// The files with one of the extensions, joined by ";". The user is told of each of the others, so that
// without extensions every file is refused.
QString filterByExtension(const QStringList& files, const QStringList& extensions);
