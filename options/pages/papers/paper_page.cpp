// Loads, reloads, moves, deletes and stores the papers; everything else about a paper is the host's dialog.
#include "options/pages/papers/paper_page.h"

#include "host/app.h"
#include "host/qt_ui_core.h"
#include "host/std_papers.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "options/pages/papers/paper_format.h"
#include "options/pages/rows/page_rows.h"
#include "options/window/preferences.h"

#include <QCheckBox>
#include <QIcon>
#include <QTreeWidget>
#include <algorithm>

using host_qt_ui_core::QHostMessageBox;

namespace {

PaperFormat* paperOf(const TreeItem* item) { return static_cast<PaperFormat*>(item->payload); }

void readPapers(Preferences& preferences, IStdPapersParam& store) {
    for (const std::string& name : childNames(&store)) {
        const Ref<IParam> section = openChild(&store, name.c_str());
        if (!section)
            continue;
        const auto copy = Ref<IParam>::take(new_MemParam());
        Param_CopyTo(section.get(), copy.get());
        preferences.paperFormats.push_back(preferences.pageRecords.keep(std::make_unique<PaperFormat>()));
        preferences.paperFormats.back()->readFrom(copy);
    }
}

std::unique_ptr<TreeItem> newPaperItem(const TreeItem& root, const QIcon& icon, PaperFormat* paper) {
    auto item = std::make_unique<TreeItem>();
    item->setText(0, paper->rowText());
    item->setIcon(0, icon);
    item->description = root.description;
    item->nodeType = kNodePaper;
    item->buttonMask = kMaskDelete | kMaskModify | kMaskAdd | kMaskUp | kMaskDown;
    item->payload = paper;
    return item;
}

void makePaperRow(Preferences& preferences, TreeItem* item) {
    PaperFormat* paper = paperOf(item);
    QCheckBox* check = makeCheckRow(preferences, item, paper->used != 0);
    const auto setUsed = [paper](int state) {
        paper->presentFlags |= kPaperUsed;
        paper->used = state == Qt::Checked ? 1 : 0;
    };
    QObject::connect(check, &QCheckBox::stateChanged, check, setUsed, Qt::DirectConnection);
}

std::vector<std::unique_ptr<TreeItem>> newPaperItems(const Preferences& preferences, const TreeItem& root) {
    const QIcon icon = iconOf(&root);
    std::vector<std::unique_ptr<TreeItem>> items;
    for (PaperFormat* paper : preferences.paperFormats)
        items.push_back(newPaperItem(root, icon, paper));
    return items;
}

// All items go in at once: with the page open on the screen the tree lays itself out, and every row widget in
// it, after each insertion.
void makePaperRows(Preferences& preferences, TreeItem* root) {
    QList<QTreeWidgetItem*> items;
    for (std::unique_ptr<TreeItem>& item : newPaperItems(preferences, *root))
        items.append(item.release());
    root->addChildren(items);
    for (QTreeWidgetItem* item : qAsConst(items))
        makePaperRow(preferences, static_cast<TreeItem*>(item));
}

} // namespace

void loadPaperFormats(Preferences& preferences, TreeItem* paperRootItem) {
    paperRootItem->buttonMask = kMaskAdd;
    preferences.paperFormats.clear();
    const Ref<IStdPapersParam> store = appService<IStdPapersParam>();
    if (!store)
        return;
    readPapers(preferences, *store);
    makePaperRows(preferences, paperRootItem);
}

void reloadPaperRows(Preferences& preferences) {
    const QList<QTreeWidgetItem*> rows = preferences.paperRootItem->takeChildren();
    for (QTreeWidgetItem* row : rows) {
        preferences.forgetItem(static_cast<TreeItem*>(row));
        delete row;
    }
    for (const PaperFormat* paper : preferences.paperFormats)
        preferences.pageRecords.drop(paper);
    loadPaperFormats(preferences, preferences.paperRootItem);
}

void storePaperFormats(IKWUnknown* app, std::vector<PaperFormat*>& paperFormats) {
    const Ref<IStdPapersParam> store = queryFor<IStdPapersParam>(app);
    if (!store)
        return;
    store->clear();
    for (std::size_t index = 0; index < paperFormats.size(); ++index) {
        CXString key;
        key.Format("Paper%08d", int(index) + 1);
        const auto section = Ref<IParam>::take(store->createChild(key));
        // Meant: the numbers follow the places in the array. A section that isn't made leaves a gap, and a
        // missing record an empty section.
        if (section && paperFormats[index])
            paperFormats[index]->writeTo(section.get());
    }
}

void addPaperFormat(Preferences& preferences, TreeItem*) {
    TreeItem* root = preferences.paperRootItem;
    const bool rootWasCurrent = preferences.tree->currentItem() == root;
    const Ref<IStdPapersParam> store = appService<IStdPapersParam>();
    if (!store || !store->AddPaper(&preferences))
        return;
    reloadPaperRows(preferences);
    if (rootWasCurrent)
        root->setExpanded(true);
    if (root->childCount() > 0) // meant: the last row, which need not be the new paper
        preferences.tree->setCurrentItem(root->child(root->childCount() - 1));
}

void modifyPaperFormat(Preferences& preferences, TreeItem* item) {
    TreeItem* root = preferences.paperRootItem;
    // Meant: the text goes to the host with the marks of a search in it.
    const std::wstring rowText = hostqt::stdWString(labelText(preferences, item));
    const int index = root->indexOfChild(item);
    const Ref<IStdPapersParam> store = appService<IStdPapersParam>();
    if (!store || !store->ModifyPaper(rowText.c_str(), &preferences))
        return;
    reloadPaperRows(preferences);
    if (QTreeWidgetItem* row = root->child(index))
        preferences.tree->setCurrentItem(row);
}

void deletePaperFormat(Preferences& preferences, TreeItem* item) {
    PaperFormat* paper = paperOf(item);
    const QString question =
        Preferences::tr("Do you really want to delete paper format:\n%1?").arg(hostqt::qString(paper->name));
    if (QHostMessageBox::question(question, EV_MB_YES | EV_MB_NO) != EV_MB_YES)
        return;
    auto& papers = preferences.paperFormats;
    const auto place = std::find(papers.begin(), papers.end(), paper);
    if (place == papers.end())
        return;
    papers.erase(place);
    takeOffRow(preferences, item);
    preferences.pageRecords.drop(paper);
    delete item;
    // Meant: a deleted paper is gone from the store at once, and with it goes all that stands in the rows.
    if (theOnlyIApp)
        storePaperFormats(theOnlyIApp, papers);
}

void movePaperFormat(Preferences& preferences, TreeItem* item, int step) {
    auto& papers = preferences.paperFormats;
    const auto place = std::find(papers.begin(), papers.end(), paperOf(item));
    const auto index = place - papers.begin();
    const auto count = static_cast<std::ptrdiff_t>(papers.size());
    if (index < count && index + step >= 0 && index + step < count)
        std::iter_swap(place, place + step);
}
