// A run without a display: Qt's platform for it, and what a desktop would have given.
#pragma once

namespace workbench {

// Before the application object is made: a headless run needs no display.
void chooseDisplay(int argc, char** argv);

// After it, off screen: the usual size of letters, which without a desktop nobody chooses, and no warnings
// about what only a desktop could do.
void actWithoutDesktop();

} // namespace workbench
