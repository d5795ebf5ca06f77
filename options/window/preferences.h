// The Options dialog: the window, its buttons and the maps that the walk of the option tree fills.
#pragma once

#include "host/ref.h"
#include "host/xstring.h"
#include "options/pages/directories/std_dir_item.h"
#include "options/pages/rows/page_records.h"
#include "options/store/tree_item.h"

#include <QDialog>
#include <QList>
#include <QMap>
#include <vector>

class CollapseWidget;
class IParam;
class OptionKeys;
class ProfileChoice;
class QButtonGroup;
class QComboBox;
class QLabel;
class QLayout;
class QPrefWidget;
class QPushButton;
class QRadioButton;
class QTextEdit;
class QToolBar;
class QToolButton;
class QTreeWidget;
class SearchingLineEdit;
struct PaperFormat;
class RasterFormat;

class Preferences : public QDialog {
    Q_OBJECT
public:
    explicit Preferences(QWidget* parent, Qt::WindowFlags flags = {});
    ~Preferences() override; // writes nothing

    // The walk (option_walk.cpp), and what stands on which item (tree_rows.cpp).
    void rebuildTree(bool fromConfiguration);
    void buildNode(IParam* node, const char* nodeName, TreeItem* parentItem);
    // Takes the editor over, also when it throws.
    QPrefWidget* makeRow(int position, TreeItem* item, QWidget* editor, bool cutAtAngleBracket,
                         int doubleClickEnabled);
    void forgetItem(TreeItem* item); // takes a row that goes away, and all below it, out of every map
    void releasePages();             // the data of the pages, whose rows have gone
    IParam* parentNode(TreeItem* item) const; // node of the parent item, null if the map has none

    // The rules (preferences_rules.cpp, row_operations.cpp, row_moves.cpp).
    void refreshButtons(TreeItem* item);
    void showDescription(TreeItem* item); // description pane, tool bar and search marks for one item
    void addToCurrent();
    void modifyCurrent();
    void deleteCurrent();
    void moveCurrent(int step); // -1 up, 1 down
    void showContextMenu(QWidget* label, const QPoint& position);

    // Values (apply.cpp).
    void applyChanges();
    void applyItem(TreeItem* item);
    void writeCursorFlag(bool value);
    void saveExpandedSections();

    // Editors, by row kind (editors_*.cpp). Each makes the editor, reads the value and makes the row.
    void buildCheck(TreeItem* item, IParam* node);
    void buildRadio(TreeItem* item, IParam* node);
    void buildColor(TreeItem* item, IParam* node, int nodeType);
    void buildEditInt(TreeItem* item, IParam* node);
    void buildEditReal(TreeItem* item, IParam* node);
    void buildFileEdit(TreeItem* item, IParam* node, int id);
    void buildEdit(TreeItem* item, IParam* node);
    void buildDirEdit(TreeItem* item, IParam* node);
    void buildCombo(TreeItem* item, IParam* node, int id);
    void setChildrenDisabled(TreeItem* item, bool disable);
    void updateGroupLabel(TreeItem* item, TreeItem* parentItem);
    void pickColor(QToolButton* button, TreeItem* item);

    QTreeWidget* tree = nullptr;
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
    SearchingLineEdit* searchEdit = nullptr;
    QComboBox* profileCombo = nullptr;
    QList<TreeItem*> expandedItems;
    QMap<TreeItem*, QButtonGroup*> buttonGroups; // key: the parent of the radio rows
    QMap<TreeItem*, QPrefWidget*> rowWidgets;
    QMap<TreeItem*, QRadioButton*> radioButtons;
    QMap<TreeItem*, QList<QRadioButton*>> radioLists; // key: the parent of the radio rows
    QString currentProfile;
    CXString cursorColorKey;
    CXString cursorSection;
    TreeItem* cursorColorItem = nullptr;
    TreeItem* paperRootItem = nullptr;
    QList<RasterFormat*> rasterFormats; // of pageRecords, as the payloads of the rows are
    std::vector<CStdDirItem> stdDirs;
    std::vector<PaperFormat*> paperFormats; // of pageRecords
    QMap<TreeItem*, IParam*> optionItems;   // borrowed: the configuration tree owns the nodes
    PageRecords pageRecords;

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
    // The walk (option_walk.cpp, tree_rows.cpp, profile_list.cpp).
    void clearTree();
    void forgetWidgets(TreeItem* item);
    TreeItem* makeRoot();
    void walkConfiguration(TreeItem* root);
    void groupRadioButtons();
    void fillProfiles();
    void runIdRule(int id, TreeItem* item);
    void buildRow(TreeItem* item, IParam* node, int typeNumber, int id);
    void restoreExpansion(TreeItem* item);
    void startDisabledWhereTold(TreeItem* item, QPrefWidget* row);
    // The rules.
    void onItemExpanded(QTreeWidgetItem* item);
    void onCurrentItemChanged(QTreeWidgetItem* current);
    void onThemeClicked();
    void setThemeIcons();
    void focusOkButton();
    void focusAtStart();
    void movePaperRow(TreeItem* item, int step);
    void moveRow(TreeItem* item, int step, QWidget* editor);
    void applyChildren(TreeItem* item);
    ProfileChoice* profileChoice = nullptr; // null unless the host has profiles
    OptionKeys* keys = nullptr;             // null unless the host wants the focus to stay where it is
    QToolBar* toolBar = nullptr;
    QLabel* configurationLabel = nullptr;
    QLabel* configurationValue = nullptr;
    QLabel* profileLabel = nullptr;
};
