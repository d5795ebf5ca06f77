// The label of an option row. Its double click is how a user modifies the row.
#include "options/pages/clickable_label.h"

#include <QMouseEvent>

ClickableLabel::ClickableLabel(const QString& text, QWidget* parent, int enabled)
    : QLabel(text, parent), doubleClickEnabled(enabled) {}

void ClickableLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    if (doubleClickEnabled && event->button() == Qt::LeftButton)
        emit doubleClicked();
    QLabel::mouseDoubleClickEvent(event);
}

#include "moc_clickable_label.cpp"
