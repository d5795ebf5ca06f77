#include "dwgprops/property_habits.h"

#include <QDialog>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>

namespace {

const int kNarrowest = 130, kWidest = 220; // of a first column

void addShortcut(QDialog& dialog, QTabWidget& tabs, const QKeySequence& keys, int step) {
    auto* const shortcut = new QShortcut(keys, &dialog);
    QObject::connect(shortcut, &QShortcut::activated, &tabs, [&tabs, step] {
        tabs.setCurrentIndex((tabs.currentIndex() + step + tabs.count()) % tabs.count());
    });
}

} // namespace

void showAllTabs(QDialog& dialog, QTabWidget& tabs) {
    const QMargins margins = dialog.layout()->contentsMargins();
    const int needed = tabs.tabBar()->sizeHint().width() + margins.left() + margins.right();
    dialog.resize(qMax(dialog.width(), needed), dialog.height());
    addShortcut(dialog, tabs, Qt::CTRL + Qt::Key_Tab, 1);
    addShortcut(dialog, tabs, Qt::CTRL + Qt::Key_PageDown, 1);
    addShortcut(dialog, tabs, Qt::CTRL + Qt::SHIFT + Qt::Key_Backtab, -1); // which of them comes
    addShortcut(dialog, tabs, Qt::CTRL + Qt::SHIFT + Qt::Key_Tab, -1);     // differs between platforms
    addShortcut(dialog, tabs, Qt::CTRL + Qt::Key_PageUp, -1);
}

void fitFirstColumn(QTableWidget& table) {
    table.resizeColumnToContents(0);
    table.setColumnWidth(0, qBound(kNarrowest, table.columnWidth(0), kWidest));
}

void letKeysInto(QTableWidget& table) {
    table.setFocusPolicy(Qt::StrongFocus);
    table.setTabKeyNavigation(false);
}
