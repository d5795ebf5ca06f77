// The tab with the former versions of the drawing's file. It only shows, and is not refreshed while the
// dialog is open.
#pragma once

#include <QTableWidget>
#include <QWidget>

// Has no meta-object of its own, on purpose: its texts, the reasons among them, are translated in the context
// "QWidget".
class HistoryTab : public QWidget {
public:
    HistoryTab();

    QTableWidget* table;

private:
    void build(int maxRows);
    void layOut();
    void fill();
    void setCell(int row, int column, const QString& text);
};
