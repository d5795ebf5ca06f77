// A run of the dialog "Object Grouping" over two groups, with a user who works it.
#pragma once

#include "groups/group_dlg.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/group_fixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

class GroupDialog : public GroupTest {
protected:
    GroupDialog() {
        addGroup(L"TABLE", pick({0, 1, 2}), L"Four legs");
        addGroup(L"CHAIR", pick({3}));
    }
    int runDialog() {
        const int result = run<CGroupCmd>();
        EXPECT_TRUE(user.finished());
        EXPECT_FALSE(database->isUndoBlockStarted());
        EXPECT_EQ(database->numActiveTransactions(), 0);
        return result;
    }
    static QTableWidget& table(const QDialog& dialog) { return in<QTableWidget>(dialog, "groupTable"); }
    static QStringList names(const QDialog& dialog) {
        QStringList list;
        for (int row = 0; row < table(dialog).rowCount(); ++row)
            list << table(dialog).item(row, 0)->text();
        return list;
    }
    static void choose(const QDialog& dialog, const char* name) {
        const auto found = table(dialog).findItems(QLatin1String(name), Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        table(dialog).setCurrentItem(found.front());
    }
    static QString message(const QDialog& dialog) { return in<QLabel>(dialog, "messageLabel").text(); }
    static void type(const QDialog& dialog, const char* edit, const QString& text) {
        in<QLineEdit>(dialog, edit).setText(text);
    }
    // Which of the five buttons that need a group are enabled.
    static QStringList enabledButtons(const QDialog& dialog) {
        QStringList list;
        for (const char* name :
             {"explodeButton", "addButton", "descriptionButton", "selectableButton", "removeButton"})
            if (in<QPushButton>(dialog, name).isEnabled())
                list << QLatin1String(name);
        return list;
    }
    static bool isEnabled(const QDialog& dialog, const char* name) {
        return in<QWidget>(dialog, name).isEnabled();
    }
    const QStringList all{"explodeButton", "addButton", "descriptionButton", "selectableButton",
                          "removeButton"};
    DialogUser user;
};
