// Switches the look of the whole application between the themes.
#pragma once

#include "host/style.h"

#include <QPalette>

namespace standin {

enum Theme { kThemeDark = 0, kThemeLight = 1, kThemeSystem = 2 };

// Make it after the application object and before its first window: it remembers the system's colours.
class StyleManager : public HostQtStyleManager {
public:
    StyleManager();
    ~StyleManager() override;
    hostui::qt::style::hostQtThemeChangeWatcher* themeWatcher() override { return &watcher; }
    int themeNumber() override { return theme; }
    // Unknown numbers count as the system's. The watcher tells of a change only.
    void setTheme(int number);

private:
    void apply();
    hostui::qt::style::hostQtThemeChangeWatcher watcher;
    QPalette systemPalette;
    int theme = kThemeDark;
};

} // namespace standin
