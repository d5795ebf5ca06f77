// Widgets, message boxes and icons of the host that its own dialogs and the module's share.
#pragma once

#include <QComboBox>
#include <QIcon>
#include <QPointer>
#include <QString>

enum EV_MB_RET { EV_MB_OK = 0x400, EV_MB_YES = 0x4000, EV_MB_NO = 0x10000 };
inline EV_MB_RET operator|(EV_MB_RET a, EV_MB_RET b) { return EV_MB_RET(int(a) | int(b)); }

namespace host_qt_ui_core {

// The widget to use as a dialog's parent; destroy it after the dialog.
class ParentWrapper {
public:
    explicit ParentWrapper(QWidget* widget) : parent(widget) {}
    operator QWidget*() const { return parent; }

private:
    QPointer<QWidget> parent;
};
ParentWrapper parentForDialog();

// Modal boxes. `buttons` are those offered, the result is the one pressed.
class QHostMessageBox {
public:
    static EV_MB_RET critical(const QString& title, const QString& text, EV_MB_RET buttons);
    static EV_MB_RET question(const QString& title, const QString& text, EV_MB_RET buttons);
    static EV_MB_RET question(const QString& text, EV_MB_RET buttons);
};

class QHostComboBox : public QComboBox {
    Q_OBJECT
public:
    explicit QHostComboBox(QWidget* parent);
    ~QHostComboBox() override;
    void disableMouseWheel(bool disable); // the wheel then scrolls what lies around the box

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    bool wheelDisabled = false;
};

// From a resource path, with a greyed form for the disabled state. A path that names nothing gives a null
// icon.
QIcon createHostDisableIcon(const QString& path);

} // namespace host_qt_ui_core

class hostIconResource {
public:
    static QIcon get(const QString& baseName); // by base name, in the set of the present theme
};
