// Where the main window was, kept in the profile.
#pragma once

#include <string>
#include <vector>

class QMainWindow;

namespace workbench {

void saveWindowPlace(const QMainWindow& window);
void restoreWindowPlace(QMainWindow& window); // nothing when none is kept

// The paths in the profile where the windows remember their places by themselves.
std::vector<std::string> windowPlacePaths();

} // namespace workbench
