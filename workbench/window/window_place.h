// Where the main window was, kept in the profile.
#pragma once

class QMainWindow;

namespace workbench {

void saveWindowPlace(const QMainWindow& window);
void restoreWindowPlace(QMainWindow& window); // nothing when none is kept

} // namespace workbench
