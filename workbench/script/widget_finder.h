// Finds the parts of a window by what a user or a test calls them.
#pragma once

#include <QString>
#include <functional>

class QAction;
class QTreeWidgetItem;
class QWidget;

namespace workbench {

// A visible part of the window by object name; one in the current row of a tree wins over others.
QWidget* widgetNamed(QWidget* window, const QString& name);

// What clicking on `nameOrText` does: a part by object name, or a button, menu entry, tab or tree row by its
// text. Null when there is no such part, or it is disabled.
std::function<void()> clickOn(QWidget* window, const QString& nameOrText);

// The tree row that reads `text`, one that is not inside a collapsed row if there is such; null when there is
// none. The text of a row that is a widget is that of its label.
QTreeWidgetItem* treeRow(QWidget* window, const QString& text);

} // namespace workbench
