// The theme watcher and the manager that serves until the application has set its own.
#include "host/style.h"

#include "standin/registry.h"

namespace hostui::qt::style {
hostQtThemeChangeWatcher::hostQtThemeChangeWatcher(QObject* parent) : QObject(parent) {}
hostQtThemeChangeWatcher::~hostQtThemeChangeWatcher() = default;
} // namespace hostui::qt::style

namespace {

class FixedTheme : public HostQtStyleManager {
public:
    hostui::qt::style::hostQtThemeChangeWatcher* themeWatcher() override { return &watcher; }
    int themeNumber() override { return 0; }

private:
    hostui::qt::style::hostQtThemeChangeWatcher watcher;
};

} // namespace

HostQtStyleManager* hostGetQtStyleManager() {
    static FixedTheme builtIn;
    return standin::registry().styles ? standin::registry().styles : &builtIn;
}
