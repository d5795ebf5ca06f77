// Catches the Tab key before the editor's own delegate moves on with it, and keeps texts of megabytes, of
// which a cell shows some words, from being laid out whole each time.
#include "dwgprops/custom_delegate.h"

#include <QKeyEvent>

namespace {

constexpr int kMostShown = 1000; // characters, more than any cell has room for

} // namespace

bool CustomDelegate::eventFilter(QObject* editor, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab) {
        emit tabPressed();
        return true;
    }
    return QItemDelegate::eventFilter(editor, event);
}

void CustomDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    const QString text = index.data().toString();
    if (text.size() <= kMostShown)
        return QItemDelegate::paint(painter, option, index);
    const QStyleOptionViewItem shown = setOptions(index, option);
    drawBackground(painter, shown, index);
    drawDisplay(painter, shown, shown.rect, text.left(kMostShown));
    drawFocus(painter, shown, shown.rect);
}

QSize CustomDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QString text = index.data().toString();
    if (text.size() <= kMostShown)
        return QItemDelegate::sizeHint(option, index);
    return {option.fontMetrics.horizontalAdvance(text.left(kMostShown)), option.fontMetrics.height()};
}

#include "moc_custom_delegate.cpp"
