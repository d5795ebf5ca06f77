// The table of custom properties: no navigation by key, Return ends the edit of a cell.
#pragma once

#include <QTableWidget>

class CustomTableWidget : public QTableWidget {
    Q_OBJECT
public:
    using QTableWidget::QTableWidget;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void finishEdit();
};

// Text of a cell; empty where there is no item.
QString cellText(const QTableWidget& table, int row, int column);
// The number of rows with a name, wherever they stand.
int countNamedRows(const QTableWidget& table);
// What the tables of the dialog have in common: two columns, whole rows, headers that only show.
void setUpPropertyTable(QTableWidget& table, const QStringList& headers);
