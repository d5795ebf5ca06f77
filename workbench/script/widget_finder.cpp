// Finds and clicks buttons, rows, tabs and actions that a user could reach.
#include "workbench/script/widget_finder.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QTabBar>
#include <QTableWidget>
#include <QTextDocument>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace workbench {

namespace {

using Click = std::function<void()>;

QString plain(QString text) {
    if (Qt::mightBeRichText(text)) {
        QTextDocument document;
        document.setHtml(text);
        text = document.toPlainText();
    }
    return text.remove(QLatin1Char('&')).simplified();
}

bool isReachable(const QWidget* part, const QWidget* window) {
    return part->isVisible() && part->isEnabled() && part->window() == window;
}

// A press and release in the middle, as a user does it.
void clickMiddle(QWidget* part) {
    part->setFocus(Qt::MouseFocusReason);
    const QPointF middle = part->rect().center();
    const QPointer<QWidget> target(part);
    QMouseEvent press(QEvent::MouseButtonPress, middle, part->mapToGlobal(middle.toPoint()), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(part, &press);
    if (!target)
        return;
    QMouseEvent release(QEvent::MouseButtonRelease, middle, part->mapToGlobal(middle.toPoint()),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(part, &release);
}

Click clickOnWidget(QWidget* part) {
    if (auto* button = qobject_cast<QAbstractButton*>(part))
        return [button = QPointer<QAbstractButton>(button)] {
            if (button)
                button->click();
        };
    return [part = QPointer<QWidget>(part)] {
        if (part)
            clickMiddle(part);
    };
}

Click clickOnButtonText(QWidget* window, const QString& text) {
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>())
        if (isReachable(button, window) && plain(button->text()) == text)
            return clickOnWidget(button);
    return nullptr;
}

Click clickOnAction(QWidget* window, const QString& nameOrText) {
    for (QAction* action : window->findChildren<QAction*>()) {
        const bool named = action->objectName() == nameOrText || plain(action->text()) == nameOrText;
        if (named && action->isEnabled() && action->isVisible() && !action->menu())
            return [action = QPointer<QAction>(action)] {
                if (action)
                    action->trigger();
            };
    }
    return nullptr;
}

Click clickOnTab(QWidget* window, const QString& text) {
    for (QTabBar* bar : window->findChildren<QTabBar*>())
        for (int i = 0; i < bar->count(); ++i)
            if (isReachable(bar, window) && plain(bar->tabText(i)) == text)
                return [bar = QPointer<QTabBar>(bar), i] {
                    if (bar)
                        bar->setCurrentIndex(i);
                };
    return nullptr;
}

QString rowText(QTreeWidget* tree, QTreeWidgetItem* item) {
    const QWidget* row = tree->itemWidget(item, 0);
    const QLabel* label = row ? row->findChild<QLabel*>() : nullptr;
    return plain(label ? label->text() : item->text(0));
}

bool isShown(const QTreeWidgetItem* item) {
    for (const QTreeWidgetItem* above = item->parent(); above; above = above->parent())
        if (!above->isExpanded())
            return false;
    return true;
}

// The editor of a row whose only text is its label: what a user clicks to change it.
Click clickOnRow(QWidget* window, const QString& text) {
    QTreeWidgetItem* item = treeRow(window, text);
    QWidget* row = item ? item->treeWidget()->itemWidget(item, 0) : nullptr;
    auto* button = row ? row->findChild<QAbstractButton*>() : nullptr;
    return button && isReachable(button, window) ? clickOnWidget(button) : nullptr;
}

Click clickOnTableRow(QWidget* window, const QString& text) {
    for (QTableWidget* table : window->findChildren<QTableWidget*>())
        for (int row = 0; isReachable(table, window) && row < table->rowCount(); ++row)
            if (table->item(row, 0) && plain(table->item(row, 0)->text()) == text)
                return [table = QPointer<QTableWidget>(table), row] {
                    if (table)
                        table->setCurrentCell(row, 0);
                };
    return nullptr;
}

} // namespace

QWidget* widgetNamed(QWidget* window, const QString& name) {
    for (const QTreeWidget* tree : window->findChildren<QTreeWidget*>()) {
        QWidget* row = tree->currentItem() ? tree->itemWidget(tree->currentItem(), 0) : nullptr;
        QWidget* part = row ? row->findChild<QWidget*>(name) : nullptr;
        if (part && isReachable(part, window))
            return part;
    }
    for (QWidget* part : window->findChildren<QWidget*>(name))
        if (isReachable(part, window))
            return part;
    return nullptr;
}

std::function<void()> clickOn(QWidget* window, const QString& nameOrText) {
    if (QWidget* part = widgetNamed(window, nameOrText))
        return clickOnWidget(part);
    for (const auto& find : {clickOnButtonText, clickOnAction, clickOnTab, clickOnRow, clickOnTableRow})
        if (const Click click = find(window, nameOrText))
            return click;
    return nullptr;
}

QTreeWidgetItem* treeRow(QWidget* window, const QString& text) {
    QTreeWidgetItem* collapsed = nullptr;
    for (QTreeWidget* tree : window->findChildren<QTreeWidget*>()) {
        if (!isReachable(tree, window))
            continue;
        for (QTreeWidgetItemIterator item(tree, QTreeWidgetItemIterator::NotHidden); *item; ++item) {
            if (rowText(tree, *item) != text)
                continue;
            if (isShown(*item))
                return *item;
            collapsed = collapsed ? collapsed : *item;
        }
    }
    return collapsed;
}

} // namespace workbench
