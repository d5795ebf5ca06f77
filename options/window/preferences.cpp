// Construction of the Options dialog: the controls in the order in which they come to be, then the layout,
// and all connections last, so that nothing reacts while the dialog is being built.
#include "options/window/preferences.h"

#include "host/dialog_habits.h"
#include "module/icons/icons.h"
#include "options/kinds/icon_numbers.h"
#include "options/pages/search/collapse_widget.h"
#include "options/pages/search/searching_line_edit.h"
#include "options/window/configuration_name.h"
#include "options/window/option_keys.h"
#include "options/window/profile_choice.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

namespace {

template <class Control> Control* named(Control* control, const char* name) {
    control->setObjectName(QLatin1String(name));
    return control;
}

} // namespace

Preferences::Preferences(Unbuilt, QWidget* parent, Qt::WindowFlags flags) : QDialog(parent, flags) {}

// The dialog is built in a second step, which the destructor follows also when the host throws on the way.
Preferences::Preferences(QWidget* parent, Qt::WindowFlags flags) : Preferences(Unbuilt(), parent, flags) {
    build();
    layOut();
    okButton->setDefault(true);
    focusAtStart();
    connectAll();
    if (const Ref<IProfiles> profiles = appService<IProfiles>())
        profileChoice = new ProfileChoice(*this, profiles);
}

// What acts on the tree goes before it, or the search box would reset a tree that is gone when the dialog,
// hidden last, takes the focus from it. The tree goes while the rest of the dialog still stands: an editor
// that loses the focus by being destroyed still reports to it.
Preferences::~Preferences() {
    delete collapseWidget;
    delete searchEdit;
    if (tree)
        tree->disconnect(this);
    delete tree;
}

void Preferences::build() {
    setMinimumSize(700, 650);
    buildTree();
    description = named(new QTextEdit(this), "description");
    description->setReadOnly(true);
    description->setAccessibleName(tr("Description"));
    profileCombo = named(new QComboBox(this), "profileCombo");
    cursorColorItem = nullptr;
    paperRootItem = nullptr;
    rebuildTree(true);
    for (TreeItem* item : qAsConst(expandedItems))
        item->setExpanded(true);
    buildButtons();
    buildToolBar();
    buildProfileRow();
    buildSearch();
}

void Preferences::buildTree() {
    tree = named(new QTreeWidget(this), "tree");
    tree->setAccessibleName(tr("Options"));
    tree->setHeaderHidden(true);
    tree->setColumnCount(1);
    tree->header()->setStretchLastSection(true);
    if (hasHabit(DialogHabit::FocusStaysInOptions))
        keys = new OptionKeys(*this);
}

void Preferences::buildButtons() {
    okButton = named(new QPushButton(tr("OK"), this), "okButton");
    cancelButton = named(new QPushButton(tr("Cancel"), this), "cancelButton");
    applyButton = named(new QPushButton(tr("Apply"), this), "applyButton");
    helpButton = named(new QPushButton(tr("Help"), this), "helpButton");
}

void Preferences::buildToolBar() {
    toolBar = named(new QToolBar(this), "toolBar");
    addButton = addTool("addButton", kToolAdd, tr("Add"));
    deleteButton = addTool("deleteButton", kToolDelete, tr("Delete"));
    upButton = addTool("upButton", kToolUp, tr("Up"));
    downButton = addTool("downButton", kToolDown, tr("Down"));
}

QToolButton* Preferences::addTool(const char* name, int icon, const QString& toolTip) {
    QToolButton* const tool = named(new QToolButton(this), name);
    tool->setEnabled(false);
    tool->setIcon(toolIcon(icon));
    tool->setToolTip(toolTip);
    tool->setAccessibleName(toolTip);
    toolBar->addWidget(tool);
    return tool;
}

void Preferences::buildProfileRow() {
    const QString configuration = currentConfigurationName();
    configurationLabel = named(new QLabel(tr("Current configuration:"), this), "configurationLabel");
    configurationValue = named(new QLabel(this), "configurationValue");
    configurationValue->setStyleSheet(QStringLiteral("font-weight: bold;"));
    configurationValue->setText(configuration.isEmpty() ? tr("Default") : configuration);

    // Unless the host has profiles, the list and the button show them and no more: neither has a connection,
    // and that is meant.
    profileButton = named(new QToolButton(this), "profileButton");
    profileButton->setIcon(treeIcon(kIconProfile));
    profileButton->setToolTip(tr("Profiles"));
    profileButton->setAccessibleName(tr("Profiles"));
    profileLabel = named(new QLabel(tr("Current profile:"), this), "profileLabel");
    profileLabel->setBuddy(profileCombo);
}

void Preferences::buildSearch() {
    searchEdit = named(
        new SearchingLineEdit(tree, description, this, QStringLiteral("green"), QStringLiteral("white")),
        "searchEdit");
    searchEdit->setAccessibleName(tr("Search"));
    searchEdit->statusLabel->setParent(this); // until the layout takes it
    searchEdit->setClearIcon(treeIcon(kIconClear));
    collapseWidget = named(new CollapseWidget(tree, searchEdit, this), "collapseWidget");
}

#include "moc_preferences.cpp"
