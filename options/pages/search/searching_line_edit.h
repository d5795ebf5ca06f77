// The search box of the Options dialog. Return filters the tree to the rows whose label or description
// matches and marks the matches; emptying the box ends the search. With a host that wants it, a pause in
// typing is as good as Return.
#pragma once

#include "options/pages/search/tree_expansion_state.h"

#include <QLineEdit>
#include <QList>
#include <QTimer>
#include <vector>

class QAction;
class QIcon;
class QLabel;
class QRegularExpression;
class QTextEdit;
class QTreeWidget;
struct SearchMark;
struct SearchRow;

class SearchingLineEdit : public QLineEdit {
    Q_OBJECT
public:
    // `tree` and `description` are not owned. The colours are names that go into the marks as they stand.
    SearchingLineEdit(QTreeWidget* tree, QTextEdit* description, QWidget* parent,
                      const QString& highlightBackground, const QString& highlightForeground);

    void setClearIcon(const QIcon& icon);
    void refreshDescription(QTreeWidgetItem* item); // after the item's description went into the pane
    void removeHighlight(QString& text) const;      // for every reader of a label's text as data

    QLabel* statusLabel = nullptr; // made without a parent; the dialog puts it into its layout

signals:
    void focusGained();
    void focusOut();
    void searchStarted();
    void searchFinished();
    void noFound();
    void smthFound();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void buildClearAction();
    void connectAll();
    bool holdsNothing() const; // empty, or the bare star
    void setTextQuietly(const QString& text);

    void connectTyping();
    void onTyped(const QString& typed);
    void onPause();
    void searchNow();
    void startSearch();
    void runSearch(const QString& text);
    void clearHighlights(const std::vector<SearchRow>& rows);
    void searchItems(std::vector<SearchRow>& rows, const QString& text);
    void keep(const SearchRow& row, const QRegularExpression& expression, const SearchMark& mark);
    void showBelowFoundItems();
    void reset(const QString& newText);

    void highlightDescription(const QString& text);

    const bool typing; // whether the host wants searches while the user types
    QTimer pause;
    bool primed = false;     // the star at the end is the box's own
    bool searchRuns = false; // from its start to the reset
    QAction* clearAction = nullptr;
    TreeExpansionState savedExpansion;  // from before Return was pressed
    QList<QTreeWidgetItem*> foundItems; // kept by the running search, empty between searches
    QTreeWidget* tree;
    QTextEdit* description;
    QString highlightBackground;
    QString highlightForeground;
};
