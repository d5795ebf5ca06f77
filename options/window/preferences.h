// The Options dialog: the window and its buttons over the index of rows that the walk of the option tree
// fills. Rows, kinds and pages see it as an OptionDialog; what it hands to them stands here as calls of one
// line.
#pragma once

#include "host/ref.h"
#include "host/xstring.h"
#include "options/pages/directories/std_dir_item.h"
#include "options/pages/rows/option_dialog.h"

#include <QDialog>

class CollapseWidget;
class OptionKeys;
class ProfileChoice;
class QComboBox;
class QLabel;
class QLayout;
class QPushButton;
class QTextEdit;
class QToolBar;
class QToolButton;
class QTreeWidgetItem;

class Preferences : public QDialog, public OptionDialog {
    Q_OBJECT
public:
    explicit Preferences(QWidget* parent, Qt::WindowFlags flags = {});
    ~Preferences() override; // writes nothing

    // The tree (preferences_tree.cpp): the walk, the builders of the rows, and Apply.
    void rebuildTree(bool fromConfiguration);
    void buildNode(IParam* node, const char* nodeName, TreeItem* parentItem);
    void buildCheck(TreeItem* item, IParam* node);
    void buildRadio(TreeItem* item, IParam* node);
    void buildColor(TreeItem* item, IParam* node, int nodeType);
    void buildEditInt(TreeItem* item, IParam* node);
    void buildEditReal(TreeItem* item, IParam* node);
    void buildFileEdit(TreeItem* item, IParam* node, int id);
    void buildEdit(TreeItem* item, IParam* node);
    void buildDirEdit(TreeItem* item, IParam* node);
    void buildCombo(TreeItem* item, IParam* node, int id);
    void applyChanges();
    void writeCursorFlag(bool value);

    // The rows (preferences_rows.cpp).
    QPrefWidget* makeRow(int position, TreeItem* item, QWidget* editor, bool cutAtAngleBracket,
                         int doubleClickEnabled) override;
    void atThemeChange(QObject* context, std::function<void()> act) override;
    QDialog& asDialog() override { return *this; }

    // The rules (preferences_rules.cpp, row_operations.cpp).
    void refreshButtons(TreeItem* item);
    void showDescription(TreeItem* item) override; // with the tool bar and the search marks
    void addToCurrent();
    void modifyCurrent();
    void deleteCurrent();
    void moveCurrent(int step); // -1 up, 1 down
    void showContextMenu(QWidget* label, const QPoint& position);

    CollapseWidget* collapseWidget = nullptr;
    QPushButton* okButton = nullptr;
    QPushButton* cancelButton = nullptr;
    QPushButton* applyButton = nullptr;
    QPushButton* helpButton = nullptr;
    QToolButton* profileButton = nullptr;
    QToolButton* addButton = nullptr;
    QToolButton* deleteButton = nullptr;
    QToolButton* upButton = nullptr;
    QToolButton* downButton = nullptr;
    QTextEdit* description = nullptr;
    QComboBox* profileCombo = nullptr;
    QString currentProfile;

signals:
    void themeChanged();

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Unbuilt {};
    Preferences(Unbuilt, QWidget* parent, Qt::WindowFlags flags);
    // Construction (preferences.cpp, preferences_layout.cpp, preferences_connections.cpp).
    void build();
    void buildTree();
    void buildButtons();
    void buildToolBar();
    void buildProfileRow();
    void buildSearch();
    QToolButton* addTool(const char* name, int icon, const QString& toolTip);
    void layOut();
    QLayout* layOutConfiguration();
    QWidget* layOutRightColumn();
    QWidget* layOutBottomRows();
    void connectAll();
    void connectButtons();
    TreeItem* makeRoot();
    void fillProfiles();
    void startDisabled(TreeItem* item, QPrefWidget* row);
    // The rules.
    TreeItem* currentItem() const; // null when no row is current
    void onItemExpanded(QTreeWidgetItem* item);
    void onCurrentItemChanged(QTreeWidgetItem* current);
    void onThemeClicked();
    void setThemeIcons();
    void focusOkButton();
    void focusAtStart();

    ProfileChoice* profileChoice = nullptr; // null unless the host has profiles
    OptionKeys* keys = nullptr;             // null unless the host wants the focus to stay where it is
    QToolBar* toolBar = nullptr;
    QLabel* configurationLabel = nullptr;
    QLabel* configurationValue = nullptr;
    QLabel* profileLabel = nullptr;
};
