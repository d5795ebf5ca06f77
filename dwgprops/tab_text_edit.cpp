// The Tab key of the comment box.
#include "dwgprops/tab_text_edit.h"

#include <QKeyEvent>

m_TabTextEdit::m_TabTextEdit(QWidget* nextWidget, QWidget* parent) : QTextEdit(parent), next(nextWidget) {}

void m_TabTextEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Tab) {
        event->accept();
        next->setFocus(Qt::OtherFocusReason);
    } else {
        QTextEdit::keyPressEvent(event);
    }
}

#include "moc_tab_text_edit.cpp"
