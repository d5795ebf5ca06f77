#include "workbench/window/wheel_guard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <QTabBar>

namespace workbench {

namespace {

bool hasValue(const QObject* object) {
    return qobject_cast<const QComboBox*>(object) || qobject_cast<const QAbstractSpinBox*>(object) ||
           qobject_cast<const QTabBar*>(object) ||
           (qobject_cast<const QAbstractSlider*>(object) && !qobject_cast<const QScrollBar*>(object));
}

} // namespace

WheelGuard::WheelGuard() { qApp->installEventFilter(this); }

// An event that is taken and not accepted goes on to the parent. An editor within a control counts as the
// control.
bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel)
        return false;
    const auto* control = qobject_cast<QWidget*>(watched);
    if (control && !hasValue(control) && hasValue(control->parent()))
        control = control->parentWidget();
    if (!control || !hasValue(control) || control->hasFocus() ||
        control->isAncestorOf(QApplication::focusWidget()))
        return false;
    event->ignore();
    return true;
}

} // namespace workbench

#include "moc_wheel_guard.cpp"
