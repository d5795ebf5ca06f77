// Keeps the wheel from changing what is only scrolled past.
#pragma once

#include <QObject>

namespace workbench {

// While it lives, no list, number or slider of the application follows the wheel without having the focus:
// the page around it scrolls instead.
class WheelGuard : public QObject {
    Q_OBJECT
public:
    WheelGuard();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace workbench
