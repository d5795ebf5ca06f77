// Message boxes, combo box, icons and dialog parent of the host.
#include "host/qt_ui_core.h"

#include "host/modal_runner.h"
#include "standin/registry.h"

#include <QApplication>
#include <QFile>
#include <QHash>
#include <QMessageBox>
#include <QPainter>
#include <QWheelEvent>

using standin::MessageKind;
using standin::registry;

namespace {

EV_MB_RET showBox(MessageKind kind, const QString& title, const QString& text, EV_MB_RET buttons) {
    if (registry().messageBox)
        return registry().messageBox(kind, title, text, buttons);
    QMessageBox box(kind == MessageKind::Critical ? QMessageBox::Critical : QMessageBox::Question, title,
                    text, QMessageBox::StandardButtons(int(buttons)), host_qt_ui_core::parentForDialog());
    box.setTextFormat(Qt::PlainText);
    return EV_MB_RET(runModal(box));
}

QPixmap faded(const QPixmap& source) {
    QPixmap result(source.size());
    result.setDevicePixelRatio(source.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(0.35);
    painter.drawPixmap(0, 0, QPixmap::fromImage(source.toImage().convertToFormat(QImage::Format_ARGB32)));
    return result;
}

QIcon withFaded(QIcon icon) {
    for (const QSize& size : icon.availableSizes())
        icon.addPixmap(faded(icon.pixmap(size)), QIcon::Disabled);
    return icon;
}

} // namespace

namespace host_qt_ui_core {

// Menus and pages of help are no parents: they go when they are closed, and what is their child with them.
ParentWrapper parentForDialog() {
    QWidget* parent = registry().dialogParent ? registry().dialogParent : QApplication::activeWindow();
    while (parent && (parent->windowType() == Qt::Popup || parent->testAttribute(Qt::WA_DeleteOnClose)))
        parent = parent->parentWidget() ? parent->parentWidget()->window() : nullptr;
    return ParentWrapper(parent ? parent : registry().mainWindow);
}

EV_MB_RET QHostMessageBox::critical(const QString& title, const QString& text, EV_MB_RET buttons) {
    return showBox(MessageKind::Critical, title, text, buttons);
}

EV_MB_RET QHostMessageBox::question(const QString& title, const QString& text, EV_MB_RET buttons) {
    return showBox(MessageKind::Question, title, text, buttons);
}

EV_MB_RET QHostMessageBox::question(const QString& text, EV_MB_RET buttons) {
    return showBox(MessageKind::Question, QCoreApplication::applicationName(), text, buttons);
}

QHostComboBox::QHostComboBox(QWidget* parent) : QComboBox(parent) {}
QHostComboBox::~QHostComboBox() = default;

void QHostComboBox::disableMouseWheel(bool disable) { wheelDisabled = disable; }

void QHostComboBox::wheelEvent(QWheelEvent* event) {
    if (wheelDisabled)
        event->ignore();
    else
        QComboBox::wheelEvent(event);
}

// Once for each path: the pixels that Qt keeps of an icon stay when the icon is gone.
QIcon createHostDisableIcon(const QString& path) {
    static QHash<QString, QIcon> made;
    if (!QFile::exists(path))
        return {};
    const auto found = made.constFind(path);
    return found != made.constEnd() ? *found : *made.insert(path, withFaded(QIcon(path)));
}

} // namespace host_qt_ui_core

QIcon hostIconResource::get(const QString& baseName) {
    static QHash<QString, QIcon> loaded; // thousands of rows share a few pictures
    const bool dark = hostGetQtStyleManager()->themeNumber() == 0;
    const QString path = (dark ? QStringLiteral(":/res/dark/") : QStringLiteral(":/res/light/")) + baseName +
                         QStringLiteral(".ico");
    const auto found = loaded.constFind(path);
    return found != loaded.constEnd() ? *found : *loaded.insert(path, QIcon(path));
}
