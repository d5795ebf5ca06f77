// The walk of the option data: every node becomes an item of the tree with its row, and the nodes that stand
// for a page hand over to it.
#include "options/window/preferences.h"

#include "host/app.h"
#include "host/dialog_habits.h"
#include "host/documents.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "module/icons/icons.h"
#include "options/kinds/icon_numbers.h"
#include "options/kinds/node_types.h"
#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/raster/raster_page.h"
#include "options/tree/dialog_state.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QTreeWidget>
#include <utility>

namespace {

// What a node says of its item before its row kind comes in.
struct NodeFacts {
    int id = kIdNone;
    QString text;
    int hidden = 0;
    QString description;
    int typeNumber = kNodeSection;
    int imageId = 0;
};

// The name stands until `Name` is read over it. A `Name` that is given and empty leaves no text, whether the
// read counts as found or not: that is how a node asks to be transparent.
QString displayText(IParam* node, const char* nodeName) {
    CXStringW text(nodeName);
    readValue(node, "Name", &text);
    return translated(text);
}

// Names that people know a row by although it shows them nowhere: that of its variable, and whatever the data
// gives beside it.
QString searchWordsOf(IParam* node) {
    if (!hasHabit(DialogHabit::SearchWhileTyping))
        return {};
    CXString key;
    CXStringW words;
    readValue(node, "Key", &key);
    readValue(node, "SearchWords", &words);
    return (hostqt::qString(CXStringW(key.c_str())) + ' ' + translated(words)).trimmed();
}

NodeFacts readFacts(IParam* node, const char* nodeName, const TreeItem* parentItem) {
    NodeFacts facts;
    readValue(node, "ID", &facts.id);
    facts.text = displayText(node, nodeName);
    if (readValue(node, "Hidden", &facts.hidden) && facts.hidden)
        return facts;
    CXStringW description;
    if (readValue(node, "Description", &description))
        facts.description = translated(description);
    CXStringW type;
    readValue(node, "Type", &type);
    facts.typeNumber = nodeTypeNumber(hostqt::qString(type));
    facts.imageId = parentItem->imageId;
    readValue(node, "Image", &facts.imageId);
    return facts;
}

// Tells the host of the walk, and of its end on every path.
class OpenOptionTree {
public:
    OpenOptionTree(HostVarService* told, IParam* walked) : variables(told), tree(walked) {
        variables->openOptionTree(tree);
    }
    ~OpenOptionTree() {
        try {
            close();
        } catch (...) { // an exception is on its way already
        }
    }
    OpenOptionTree(const OpenOptionTree&) = delete;
    OpenOptionTree& operator=(const OpenOptionTree&) = delete;

    void close() {
        if (HostVarService* const open = std::exchange(variables, nullptr))
            open->closeOptionTree(tree);
    }

private:
    HostVarService* variables; // null once the tree is closed
    IParam* tree;
};

} // namespace

void Preferences::rebuildTree(bool fromConfiguration) {
    if (fromConfiguration) {
        clearTree();
        TreeItem* const root = makeRoot();
        walkConfiguration(root);
        groupRadioButtons();
        tree->setCurrentItem(root);
    }
    fillProfiles();
}

// The root's number stays 0 although its picture is row 33 of the icon table.
TreeItem* Preferences::makeRoot() {
    auto* const root = new TreeItem(tree, {tr("Application preferences")});
    root->setIcon(0, treeIcon(kIconRoot));
    root->setExpanded(true);
    makeRow(2, root, nullptr, false, 1);
    return root;
}

void Preferences::walkConfiguration(TreeItem* root) {
    const Ref<IConfigParam> configuration = appService<IConfigParam>();
    const Ref<IParam> prefTree = openChild(configuration.get(), "PrefTree");
    OpenOptionTree walk(HostDocManager()->varService(), prefTree.get());
    buildNode(prefTree.get(), "", root);
    walk.close();
}

void Preferences::groupRadioButtons() {
    for (auto list = radioLists.cbegin(); list != radioLists.cend(); ++list) {
        auto* const group = new QButtonGroup(this);
        group->setExclusive(true);
        for (QRadioButton* button : list.value())
            group->addButton(button, -1);
        buttonGroups[list.key()] = group;
    }
}

void Preferences::buildNode(IParam* node, const char* nodeName, TreeItem* parentItem) {
    const NodeFacts facts = readFacts(node, nodeName, parentItem);
    if (facts.hidden)
        return;
    TreeItem* item = parentItem;
    // The node of a transparent child takes the place of the parent's own for the values: meant.
    if (facts.text.isEmpty()) {
        optionItems[parentItem] = node;
    } else {
        item = new TreeItem(parentItem, {facts.text});
        item->imageId = facts.imageId;
        item->setIcon(0, treeIcon(facts.imageId));
        item->nodeName = nodeName;
        item->description = facts.description;
        item->searchWords = searchWordsOf(node);
        optionItems[item] = node;
        item->nodeType = facts.typeNumber;
        runIdRule(facts.id, item);
        buildRow(item, node, facts.typeNumber, facts.id);
        restoreExpansion(item);
    }
    for (const std::string& child : childNames(node))
        buildNode(openChild(node, child.c_str()).get(), child.c_str(), item);
}

void Preferences::runIdRule(int id, TreeItem* item) {
    switch (id) {
    case kIdPapers:
        paperRootItem = item;
        item->nodeType = kNodePaperRoot;
        loadPaperFormats(*this, item);
        break;
    case kIdStdDirs:
        loadStdDirs(*this, item);
        break;
    case kIdRasterFormats:
        loadRasterFormats(*this, item);
        break;
    case kIdCursorColor:
        item->optionId = kIdCursorColor;
        cursorColorItem = item;
        cursorColorKey = "Color3D";
        cursorSection = "Cursor";
        break;
    default:
        break;
    }
}

// By the number of `Type`, also where the rule of an `ID` has given the item another one.
void Preferences::buildRow(TreeItem* item, IParam* node, int typeNumber, int id) {
    switch (typeNumber) {
    case kNodeCheck:
        return buildCheck(item, node);
    case kNodeRadio:
    case kNodeRadioCursor:
        return buildRadio(item, node);
    case kNodeColor:
    case kNodeAcColor:
        return buildColor(item, node, typeNumber);
    case kNodeEditInt:
        return buildEditInt(item, node);
    case kNodeEditReal:
        return buildEditReal(item, node);
    case kNodeEditFile:
    case kNodeEditMultiFile:
        return buildFileEdit(item, node, id);
    case kNodeEdit:
        return buildEdit(item, node);
    case kNodeEditDir:
        return buildDirEdit(item, node);
    case kNodeCombo:
        return buildCombo(item, node, id);
    default:
        makeRow(2, item, nullptr, false, 1);
    }
}

// An entry under the node's name is enough, whatever its value.
void Preferences::restoreExpansion(TreeItem* item) {
    const Ref<IProfile> profile = appService<IProfile>();
    if (!profile)
        return;
    CXString path(kDialogSection);
    path.AddDirDelim();
    path += kExpandedSections;
    const Ref<IParam> expandedSections = openChild(profile.get(), path.c_str());
    unsigned int expanded = 0;
    if (readValue(expandedSections.get(), item->nodeName.constData(), &expanded))
        expandedItems.append(item);
}
