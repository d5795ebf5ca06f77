// The editor of a real number: it makes its row current and leaves the wheel to the tree until it has the
// focus.
#pragma once

#include <QDoubleSpinBox>
#include <QTimer>

class QTreeWidget;
class QTreeWidgetItem;

class DoubleSpinBox : public QDoubleSpinBox {
public:
    // Both may be null; they are not owned.
    DoubleSpinBox(QTreeWidgetItem* rowItem, QTreeWidget* rowTree, QWidget* parent);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    QTreeWidgetItem* item;
    QTreeWidget* tree;
    QTimer selectionTimer;
};
