// The walk of the option data: every node becomes an item of the tree with its row.
#include "options/tree/option_walk.h"

#include "host/app.h"
#include "host/dialog_habits.h"
#include "host/documents.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "module/icons/icons.h"
#include "options/kinds/row_kind.h"
#include "options/pages/rows/option_dialog.h"
#include "options/tree/dialog_state.h"
#include "options/tree/id_rules.h"

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

// An entry under the node's name is enough, whatever its value.
void restoreExpansion(OptionDialog& options, TreeItem* item) {
    const Ref<IProfile> profile = appService<IProfile>();
    if (!profile)
        return;
    CXString path(kDialogSection);
    path.AddDirDelim();
    path += kExpandedSections;
    const Ref<IParam> expandedSections = openChild(profile.get(), path.c_str());
    unsigned int expanded = 0;
    if (readValue(expandedSections.get(), item->nodeName.constData(), &expanded))
        options.expandedItems.append(item);
}

} // namespace

void walkConfiguration(OptionDialog& options, TreeItem* root) {
    const Ref<IConfigParam> configuration = appService<IConfigParam>();
    const Ref<IParam> prefTree = openChild(configuration.get(), "PrefTree");
    OpenOptionTree walk(HostDocManager()->varService(), prefTree.get());
    buildNode(options, prefTree.get(), "", root);
    walk.close();
}

void buildNode(OptionDialog& options, IParam* node, const char* nodeName, TreeItem* parentItem) {
    const NodeFacts facts = readFacts(node, nodeName, parentItem);
    if (facts.hidden)
        return;
    TreeItem* item = parentItem;
    // The node of a transparent child takes the place of the parent's own for the values: meant.
    if (facts.text.isEmpty()) {
        options.optionItems[parentItem] = node;
    } else {
        item = new TreeItem(parentItem, {facts.text});
        item->imageId = facts.imageId;
        item->setIcon(0, treeIcon(facts.imageId));
        item->nodeName = nodeName;
        item->description = facts.description;
        item->searchWords = searchWordsOf(node);
        options.optionItems[item] = node;
        item->nodeType = facts.typeNumber;
        runIdRule(options, facts.id, item);
        // By the number of `Type`, also where the rule of the `ID` has given the item another one.
        rowKind(facts.typeNumber).build(options, item, node, facts.id);
        restoreExpansion(options, item);
    }
    for (const std::string& child : childNames(node))
        buildNode(options, openChild(node, child.c_str()).get(), child.c_str(), item);
}
