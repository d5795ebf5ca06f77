// The index of the Options dialog: what stands on each item of its tree, and the records behind the rows of
// its pages. It knows neither the kinds of rows nor the window.
#pragma once

#include "host/xstring.h"
#include "options/pages/rows/page_records.h"
#include "options/store/tree_item.h"

#include <QList>
#include <QMap>
#include <vector>

class CStdDirItem;
class IParam;
class QButtonGroup;
class QPrefWidget;
class QRadioButton;
class QTreeWidget;
class RasterFormat;
struct PaperFormat;

class OptionIndex {
public:
    OptionIndex();
    OptionIndex(const OptionIndex&) = delete;
    OptionIndex& operator=(const OptionIndex&) = delete;

    IParam* parentNode(TreeItem* item) const; // node of the parent item, null if the map has none
    void forgetItem(TreeItem* item);    // takes a row that goes away, and all below it, out of every map
    void forgetWidgets(TreeItem* item); // the same for the rows alone: the items stay
    void releasePages();                // the data of the pages, whose rows have gone
    void clearTree();                   // the items with all that stands on them

    QTreeWidget* tree = nullptr;
    QList<TreeItem*> expandedItems;
    QMap<TreeItem*, QButtonGroup*> buttonGroups; // key: the parent of the radio rows
    QMap<TreeItem*, QPrefWidget*> rowWidgets;
    QMap<TreeItem*, QRadioButton*> radioButtons;
    QMap<TreeItem*, QList<QRadioButton*>> radioLists; // key: the parent of the radio rows
    CXString cursorColorKey;
    CXString cursorSection;
    TreeItem* cursorColorItem = nullptr;
    TreeItem* paperRootItem = nullptr;
    QList<RasterFormat*> rasterFormats; // of pageRecords, as the payloads of the rows are
    std::vector<CStdDirItem> stdDirs;
    std::vector<PaperFormat*> paperFormats; // of pageRecords
    QMap<TreeItem*, IParam*> optionItems;   // borrowed: the configuration tree owns the nodes
    PageRecords pageRecords;

protected:
    ~OptionIndex();
};
