// Both edits put the cursor back to the first character, each on its own occasion.
#include "dwgprops/start_line_edit.h"

// Meant to go past QLineEdit to QWidget.
void m_LineEdit::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    setCursorPosition(0);
}

void SummaryLineEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    setCursorPosition(0);
}

#include "moc_start_line_edit.cpp"
