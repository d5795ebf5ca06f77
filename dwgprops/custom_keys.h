// The keys of the table of custom properties, for hosts with the habit: arrows walk, Delete deletes a row,
// F2 and Enter edit its value.
#pragma once

#include <QObject>

class CustomTab;
class CustomTableWidget;
class QLineEdit;

class CustomKeys : public QObject {
public:
    explicit CustomKeys(CustomTab& watched);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool onTableKey(int key);
    bool onEditorKey(QLineEdit& editor, int key);
    void walkTo(int row);
    void edit();

    CustomTab& tab;
    CustomTableWidget* const table; // still there when the tab has become a plain widget at its end
    QString before;                 // the value that is being edited
};
