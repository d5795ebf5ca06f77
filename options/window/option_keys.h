// What keys do in the option tree and in the editors of its rows, for hosts with the habit that the focus
// stays where it is: Space switches, F2 and Enter go into the editor of the row, Escape and Enter come back.
#pragma once

#include <QObject>
#include <QVariant>

class Preferences;
class QContextMenuEvent;
class QKeyEvent;

class OptionKeys : public QObject {
public:
    explicit OptionKeys(Preferences& dialog); // watches the tree
    // An editor of a row: left by keys, and reached by F2 instead of by Tab.
    void watch(QWidget* editor);
    void orderTabs() const; // once all controls of the dialog stand

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool onTreeKey(const QKeyEvent& event);
    bool onTreeMenu(const QContextMenuEvent& event);
    bool onEditorKey(QWidget* editor, const QKeyEvent& event);
    bool switchRow();
    void enterRow();
    void leaveByTab();
    QWidget* currentEditor() const; // null when it takes no keys

    Preferences& dialog;
    QVariant valueAtFocus; // of the editor that has the focus
};
