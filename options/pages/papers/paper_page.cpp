// Loads, reloads, moves, deletes and stores the papers; everything else about a paper is the host's dialog.
#include "options/pages/papers/paper_page.h"

#include "host/app.h"
#include "host/qt_ui_core.h"
#include "host/std_papers.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "options/pages/papers/paper_format.h"
#include "options/pages/rows/option_dialog.h"
#include "options/pages/rows/page_rows.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QIcon>
#include <QTreeWidget>
#include <algorithm>

using host_qt_ui_core::QHostMessageBox;

namespace {

PaperFormat* paperOf(const TreeItem* item) { return static_cast<PaperFormat*>(item->payload); }

void readPapers(OptionDialog& options, IStdPapersParam& store) {
    for (const std::string& name : childNames(&store)) {
        const Ref<IParam> section = openChild(&store, name.c_str());
        if (!section)
            continue;
        const auto copy = Ref<IParam>::take(new_MemParam());
        Param_CopyTo(section.get(), copy.get());
        options.paperFormats.push_back(options.pageRecords.keep(std::make_unique<PaperFormat>()));
        options.paperFormats.back()->readFrom(copy);
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

void makePaperRow(OptionDialog& options, TreeItem* item) {
    PaperFormat* paper = paperOf(item);
    QCheckBox* check = makeCheckRow(options, item, paper->used != 0);
    const auto setUsed = [paper](int state) {
        paper->presentFlags |= kPaperUsed;
        paper->used = state == Qt::Checked ? 1 : 0;
    };
    QObject::connect(check, &QCheckBox::stateChanged, check, setUsed, Qt::DirectConnection);
}

std::vector<std::unique_ptr<TreeItem>> newPaperItems(const OptionDialog& options, const TreeItem& root) {
    const QIcon icon = iconOf(&root);
    std::vector<std::unique_ptr<TreeItem>> items;
    for (PaperFormat* paper : options.paperFormats)
        items.push_back(newPaperItem(root, icon, paper));
    return items;
}

// All items go in at once: with the page open on the screen the tree lays itself out, and every row widget in
// it, after each insertion.
void makePaperRows(OptionDialog& options, TreeItem* root) {
    QList<QTreeWidgetItem*> items;
    for (std::unique_ptr<TreeItem>& item : newPaperItems(options, *root))
        items.append(item.release());
    root->addChildren(items);
    for (QTreeWidgetItem* item : qAsConst(items))
        makePaperRow(options, static_cast<TreeItem*>(item));
}

} // namespace

void loadPaperFormats(OptionDialog& options, TreeItem* paperRootItem) {
    paperRootItem->buttonMask = kMaskAdd;
    options.paperFormats.clear();
    const Ref<IStdPapersParam> store = appService<IStdPapersParam>();
    if (!store)
        return;
    readPapers(options, *store);
    makePaperRows(options, paperRootItem);
}

void reloadPaperRows(OptionDialog& options) {
    const QList<QTreeWidgetItem*> rows = options.paperRootItem->takeChildren();
    for (QTreeWidgetItem* row : rows) {
        options.forgetItem(static_cast<TreeItem*>(row));
        delete row;
    }
    for (const PaperFormat* paper : options.paperFormats)
        options.pageRecords.drop(paper);
    loadPaperFormats(options, options.paperRootItem);
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

void addPaperFormat(OptionDialog& options, TreeItem*) {
    TreeItem* root = options.paperRootItem;
    const bool rootWasCurrent = options.tree->currentItem() == root;
    const Ref<IStdPapersParam> store = appService<IStdPapersParam>();
    if (!store || !store->AddPaper(&options.asDialog()))
        return;
    reloadPaperRows(options);
    if (rootWasCurrent)
        root->setExpanded(true);
    if (root->childCount() > 0) // meant: the last row, which need not be the new paper
        options.tree->setCurrentItem(root->child(root->childCount() - 1));
}

void modifyPaperFormat(OptionDialog& options, TreeItem* item) {
    TreeItem* root = options.paperRootItem;
    // Meant: the text goes to the host with the marks of a search in it.
    const std::wstring rowText = hostqt::stdWString(labelText(options, item));
    const int index = root->indexOfChild(item);
    const Ref<IStdPapersParam> store = appService<IStdPapersParam>();
    if (!store || !store->ModifyPaper(rowText.c_str(), &options.asDialog()))
        return;
    reloadPaperRows(options);
    if (QTreeWidgetItem* row = root->child(index))
        options.tree->setCurrentItem(row);
}

void deletePaperFormat(OptionDialog& options, TreeItem* item) {
    PaperFormat* paper = paperOf(item);
    const QString question =
        QCoreApplication::translate("Preferences", "Do you really want to delete paper format:\n%1?")
            .arg(hostqt::qString(paper->name));
    if (QHostMessageBox::question(question, EV_MB_YES | EV_MB_NO) != EV_MB_YES)
        return;
    auto& papers = options.paperFormats;
    const auto place = std::find(papers.begin(), papers.end(), paper);
    if (place == papers.end())
        return;
    papers.erase(place);
    takeOffRow(options, item);
    options.pageRecords.drop(paper);
    delete item;
    // Meant: a deleted paper is gone from the store at once, and with it goes all that stands in the rows.
    if (theOnlyIApp)
        storePaperFormats(theOnlyIApp, papers);
}

void movePaperFormat(OptionDialog& options, TreeItem* item, int step) {
    auto& papers = options.paperFormats;
    const auto place = std::find(papers.begin(), papers.end(), paperOf(item));
    const auto index = place - papers.begin();
    const auto count = static_cast<std::ptrdiff_t>(papers.size());
    if (index < count && index + step >= 0 && index + step < count)
        std::iter_swap(place, place + step);
}
