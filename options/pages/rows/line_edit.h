// The editor of a text: it makes its row current and loses surrounding spaces with the focus.
#pragma once

#include <QLineEdit>
#include <QTimer>

class QTreeWidget;
class QTreeWidgetItem;

class LineEdit : public QLineEdit {
public:
    // Item and tree may be null; they are not owned.
    LineEdit(QTreeWidgetItem* rowItem, QTreeWidget* rowTree, const QString& text, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QTimer selectionTimer;
    QTreeWidgetItem* item;
    QTreeWidget* tree;
};
