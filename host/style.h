// The themes of the host.
#pragma once

#include <QObject>

namespace hostui::qt::style {

class hostQtThemeChangeWatcher : public QObject {
    Q_OBJECT
public:
    explicit hostQtThemeChangeWatcher(QObject* parent = nullptr);
    ~hostQtThemeChangeWatcher() override;
signals:
    void clicked(); // after every change of theme
};

} // namespace hostui::qt::style

class HostQtStyleManager {
public:
    virtual ~HostQtStyleManager() = default;
    virtual hostui::qt::style::hostQtThemeChangeWatcher* themeWatcher() = 0;
    virtual int themeNumber() = 0; // 0 dark, 1 light, any other number for further ones
};

HostQtStyleManager* hostGetQtStyleManager();
