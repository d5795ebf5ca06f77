// The editor of a whole number: it makes its row current and leaves the wheel to the tree until it has the
// focus.
#pragma once

#include <QSpinBox>
#include <QTimer>

class QTreeWidget;
class QTreeWidgetItem;

class IntSpinBox : public QSpinBox {
public:
    // Both may be null; they are not owned.
    IntSpinBox(QTreeWidgetItem* rowItem, QTreeWidget* rowTree, QWidget* parent);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    QTimer selectionTimer;
    QTreeWidgetItem* item;
    QTreeWidget* tree;
};
