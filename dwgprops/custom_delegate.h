// Editors of table cells that tell of the Tab key instead of moving on by themselves.
#pragma once

#include <QItemDelegate>

class CustomDelegate : public QItemDelegate {
    Q_OBJECT
public:
    using QItemDelegate::QItemDelegate;
    bool eventFilter(QObject* editor, QEvent* event) override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

signals:
    void tabPressed();
};
