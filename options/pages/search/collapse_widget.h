// Drives the buttons "Collapse all" and "Expand" of the Options dialog and their play with the search. The
// dialog places the buttons; this widget itself is never seen.
#pragma once

#include "options/pages/search/tree_expansion_state.h"

#include <QWidget>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class SearchingLineEdit;

class CollapseWidget : public QWidget {
public:
    // Tree and search box are not owned. The buttons become children of `parent`.
    CollapseWidget(QTreeWidget* tree, SearchingLineEdit* searchEdit, QWidget* parent);

    QPushButton* collapseButton = nullptr;
    QPushButton* expandButton = nullptr;

private:
    void buildButtons(QWidget* parent);
    void connectTree();
    void connectButtons();
    void connectSearch();
    void onItemCollapsed(QTreeWidgetItem* item);
    void onSearchStarted();
    void onSearchFinished();
    void updateButtons();
    bool allCollapsed() const;
    void collapseAll();
    void collapseBelow(QTreeWidgetItem* item, bool keepItem);
    bool holdsCurrentItem(const QTreeWidgetItem* item) const;
    void expandAgain();

    TreeExpansionState state; // from before "Collapse all"
    bool searching = false;
    bool selectCollapsed = true; // false during the walk of "Collapse all"
    bool searchHasResult = true;
    QTreeWidget* tree;
    SearchingLineEdit* searchEdit;
};
