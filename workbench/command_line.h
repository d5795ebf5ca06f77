// What the user asks for when starting the workbench.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace workbench {

struct Launch {
    QString rootDir;    // what the user changes is kept here
    QString dataDir;    // the shipped data
    QString scriptFile; // empty: none
    QString drawing;    // empty: an empty one
    QString moduleFile; // the plug-in
    QString guideFile;  // the user guide
    bool headless = false;
    std::optional<int> theme; // over the one that the user has set
};

// The places that serve when nothing else is said.
Launch defaultLaunch();

// Reads the arguments (the program's name first) over the defaults. On a fault, or when help is asked for,
// the result is empty and `message` says what to print; `failed` tells the two apart.
std::optional<Launch> parseCommandLine(const QStringList& arguments, QString* message, bool* failed);

} // namespace workbench
