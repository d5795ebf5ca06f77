// The label of an option row. Its double click is how a user modifies the row.
#include "options/pages/rows/clickable_label.h"

#include <QMouseEvent>
#include <QPointer>

ClickableLabel::ClickableLabel(const QString& text, QWidget* parent, int enabled)
    : QLabel(text, parent), doubleClickEnabled(enabled) {}

void ClickableLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPointer<ClickableLabel> alive(this);
    if (doubleClickEnabled && event->button() == Qt::LeftButton)
        emit doubleClicked();
    if (alive)
        QLabel::mouseDoubleClickEvent(event);
    else
        event->accept(); // an ignored one would be offered to the parent of a label that is gone
}

#include "moc_clickable_label.cpp"
