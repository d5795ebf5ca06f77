// Shortens its text anew whenever its width changes.
#include "dwgprops/elided_label.h"

#include <QFontMetrics>

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : QLabel(parent), fullText(text) { elide(); }

// Meant to go past QLabel to QWidget.
void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    elide();
}

void ElidedLabel::elide() { setText(QFontMetrics(font()).elidedText(fullText, Qt::ElideRight, width())); }

#include "moc_elided_label.cpp"
