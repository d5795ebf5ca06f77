// What the controls of the Options dialog do, in one place.
#include "options/window/preferences.h"

#include "host/help.h"
#include "host/style.h"

#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

void Preferences::connectAll() {
    connect(tree, &QTreeWidget::itemExpanded, this, &Preferences::onItemExpanded, Qt::DirectConnection);
    connect(tree, &QTreeWidget::currentItemChanged, this, &Preferences::onCurrentItemChanged,
            Qt::DirectConnection);
    connectButtons();
}

void Preferences::connectButtons() {
    const auto onClicked = [this](QAbstractButton* button, auto effect) {
        connect(button, &QAbstractButton::clicked, this, effect, Qt::DirectConnection);
    };
    onClicked(okButton, [this] {
        applyChanges();
        accept();
    });
    onClicked(applyButton, [this] { applyChanges(); });
    onClicked(cancelButton, [this] { reject(); });
    onClicked(addButton, [this] { addToCurrent(); });
    onClicked(deleteButton, [this] { deleteCurrent(); });
    onClicked(upButton, [this] { moveCurrent(-1); });
    onClicked(downButton, [this] { moveCurrent(1); });
    connect(hostGetQtStyleManager()->themeWatcher(), &hostui::qt::style::hostQtThemeChangeWatcher::clicked,
            this, &Preferences::onThemeClicked, Qt::DirectConnection);
    onClicked(helpButton, [] { showHelp("IDH_PreferencesCMD"); });
}
