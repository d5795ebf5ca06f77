// The Options dialog on the screen, and a user's hands on it.
#pragma once

#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "tests/options/option_data.h"
#include "tests/support/poll.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

class OpenDialog : public Preferences {
public:
    OpenDialog() : Preferences(nullptr) {
        show();
        activateWindow();
        waitUntil([this] { return isActiveWindow() && isVisible(); });
    }
    template <class Control> Control* control(const char* name) const {
        auto* const found = findChild<Control*>(name);
        if (!found)
            throw std::invalid_argument(name);
        return found;
    }
    QAbstractButton* button(const char* name) const { return control<QAbstractButton>(name); }
    void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    ClickableLabel* labelOf(TreeItem* item) const { return rowWidgets.value(item)->label(); }
    void clickRow(TreeItem* item) {
        tree->scrollToItem(item);
        QTest::mouseClick(labelOf(item), Qt::LeftButton);
    }
    void doubleClickRow(TreeItem* item) {
        tree->scrollToItem(item);
        QTest::mouseDClick(labelOf(item), Qt::LeftButton);
    }
    // Asks for the row's menu and hands it to `onMenu`; the menu is closed when that leaves it open.
    void withContextMenu(TreeItem* item, const std::function<void(QMenu&)>& onMenu) {
        bool seen = false;
        QTimer::singleShot(0, this, [&seen, onMenu] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu)
                return;
            seen = true;
            onMenu(*menu);
            menu->close();
        });
        const QPoint place = labelOf(item)->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, labelOf(item)->mapToGlobal(place));
        QApplication::sendEvent(labelOf(item), &event);
        EXPECT_TRUE(seen) << "no menu came up";
    }
};

inline QAction* menuAction(const QMenu& menu, const QString& text) {
    for (QAction* action : menu.actions())
        if (action->text() == text)
            return action;
    throw std::invalid_argument("no such action: " + text.toStdString());
}
