// Catches the Tab key before the editor's own delegate moves on with it.
#include "dwgprops/custom_delegate.h"

#include <QKeyEvent>

bool CustomDelegate::eventFilter(QObject* editor, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab) {
        emit tabPressed();
        return true;
    }
    return QItemDelegate::eventFilter(editor, event);
}

#include "moc_custom_delegate.cpp"
