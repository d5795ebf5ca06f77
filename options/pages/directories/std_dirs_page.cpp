// Adds, changes, deletes and moves paths, and checks a path before it is taken.
#include "options/pages/directories/std_dirs_page.h"

#include "host/app.h"
#include "host/modal_runner.h"
#include "host/param.h"
#include "host/qt_ui_core.h"
#include "host/text.h"
#include "options/pages/directories/dirs_dialog.h"
#include "options/pages/directories/path_rows.h"
#include "options/pages/directories/std_dir_info.h"
#include "options/pages/directories/std_dir_item.h"
#include "options/pages/directories/std_dir_list.h"
#include "options/pages/rows/option_dialog.h"
#include "options/pages/rows/page_rows.h"

#include <QTreeWidget>

using host_qt_ui_core::QHostMessageBox;

namespace {

// False when the dialog is cancelled or leaves an empty path.
bool askForPath(OptionDialog& options, const QString& title, QString& path) {
    DirsDialog dialog(path, &options.asDialog());
    dialog.setWindowTitle(title);
    return runModal(dialog) == QDialog::Accepted && !path.isEmpty();
}

int sectionIndexOf(const TreeItem* item) { return static_cast<int>(item->numberValue); }

const Ref<StdDirList>& listOf(OptionDialog& options, int sectionIndex) {
    return options.stdDirs[static_cast<std::size_t>(sectionIndex)].list;
}

QString storedPath(const Ref<IStdDirInfo>& info) {
    return hostqt::qString(info->GetPath()).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

void makeCurrent(OptionDialog& options, TreeItem* item) {
    options.tree->setCurrentItem(item);
    options.tree->setFocus(Qt::OtherFocusReason);
}

void exchangePaths(IStdDirInfo* one, IStdDirInfo* other) {
    const CXStringW pathOfOne(one->GetPath());
    const CXStringW pathOfOther(other->GetPath());
    other->SetPath(pathOfOne);
    one->SetPath(pathOfOther);
}

} // namespace

bool validatePath(OptionDialog& options, const QString& path, const QString& sectionTitle, int sectionIndex) {
    if (path.contains(QLatin1Char(';'))) {
        // Meant: the wording as it stands, with a back-tick for an apostrophe.
        const QString text =
            QStringLiteral("Path \"%1\" is not valid. You can`t use ';' character.").arg(path);
        QHostMessageBox::critical(sectionTitle, text, EV_MB_OK);
        return false;
    }
    for (const Ref<IStdDirInfo>& info : elementsOf(listOf(options, sectionIndex))) {
        // Meant: only the stored path has its backslashes turned.
        if (storedPath(info).compare(path, Qt::CaseInsensitive) == 0) {
            const QString text = QStringLiteral("Path \"%1\" already exists in \"%2\" section.");
            QHostMessageBox::critical(sectionTitle, text.arg(path, sectionTitle), EV_MB_OK);
            return false;
        }
    }
    return true;
}

void addPath(OptionDialog& options, TreeItem* item) {
    TreeItem* section = item->nodeType == kNodePath ? item->parentItem() : item;
    const QString title = plainLabelText(options, section);
    QString path;
    if (!askForPath(options, title, path))
        return;
    const int index = sectionIndexOf(section);
    if (!validatePath(options, path, title, index))
        return;
    const auto info = Ref<IStdDirInfo>::take(new_StdDirInfo(".Local", hostqt::cxStringW(path), 1));
    // Meant: a row made after the dialog has opened doesn't open on double click.
    TreeItem* added = makePathItem(options, section, iconOf(section), info, 0);
    appendTo(listOf(options, index), info);
    section->setExpanded(true);
    options.tree->setCurrentItem(added);
}

void modifyPath(OptionDialog& options, TreeItem* item) {
    QString path = plainLabelText(options, item);
    const QString before = path;
    const QString title = plainLabelText(options, item->parentItem());
    if (!askForPath(options, title, path))
        return;
    if (path.compare(before, Qt::CaseInsensitive) == 0)
        return; // meant: a change of letter case alone is dropped
    if (!validatePath(options, path, title, sectionIndexOf(item)))
        return;
    showPath(*options.rowWidgets.value(item), path);
    payloadOf(item)->SetPath(hostqt::cxStringW(path));
}

void deletePath(OptionDialog& options, TreeItem* item) {
    TreeItem* section = item->parentItem();
    removeFrom(listOf(options, sectionIndexOf(item)), payloadOf(item));
    takeOffRow(options, item);
    makeCurrent(options, section);
    options.pageRecords.drop(item->payload);
    delete item;
}

void movePath(OptionDialog& options, TreeItem* item, int step) {
    TreeItem* section = item->parentItem();
    const int index = section->indexOfChild(item);
    const int target = index + step;
    if (target < 0 || target >= section->childCount())
        return;
    TreeItem* neighbour = section->childItem(target);
    const QString text = plainLabelText(options, item);
    section->takeChild(index);
    section->insertChild(target, item);
    // Meant: the list keeps its order and the texts change places, so that afterwards each of the two rows
    // shows what the other's element holds.
    exchangePaths(payloadOf(item), payloadOf(neighbour));
    item->setText(0, text);
    makePathRow(options, item, 0); // meant: a moved row doesn't open on double click either
    makeCurrent(options, item);
}

void storeStdDirs(OptionDialog& options) {
    if (!appService<IStdDirs>())
        return;
    for (CStdDirItem& section : options.stdDirs)
        section.Store(theOnlyIApp);
}
