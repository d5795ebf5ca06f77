// Loads the numbered list of raster formats, edits it in memory, and numbers it anew on Apply.
#include "options/pages/raster/raster_page.h"

#include "host/app.h"
#include "host/modal_runner.h"
#include "host/qt_ui_core.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "options/pages/raster/raster_dialog.h"
#include "options/pages/raster/raster_format.h"
#include "options/pages/rows/option_dialog.h"
#include "options/pages/rows/page_rows.h"
#include "options/pages/rows/pref_widget.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QIcon>
#include <QTreeWidget>
#include <memory>

using host_qt_ui_core::QHostMessageBox;

namespace {

RasterFormat* formatOf(const TreeItem* item) { return static_cast<RasterFormat*>(item->payload); }

CXString numberKey(int number) {
    CXString key;
    key.Format("Format%d", number);
    return key;
}

// Meant: the list ends at the first gap, on reading as on wiping; what lies beyond it is never touched.
bool readNumbered(IParam* raster, int number, CXString* name) {
    return readValue(raster, numberKey(number), name);
}

void readFormats(OptionDialog& options, IParam* store, IParam* raster) {
    CXString name;
    for (int number = 1; readNumbered(raster, number, &name); ++number) {
        const Ref<IParam> section = openChild(store, CXString("Formats\\") + name);
        if (!section)
            continue; // meant: such a name is dropped, from the numbering too on the next Apply
        const auto copy = Ref<IParam>::take(new_MemParam());
        Param_CopyTo(section.get(), copy.get());
        options.rasterFormats.append(options.pageRecords.keep(std::make_unique<RasterFormat>(name, copy)));
    }
}

void makeFormatRow(OptionDialog& options, TreeItem* parent, const QIcon& icon, RasterFormat* format) {
    auto* item = new TreeItem(parent);
    item->setText(0, hostqt::qString(format->description));
    item->setIcon(0, icon);
    item->description = translated(format->longDescription);
    item->nodeType = kNodeRasterFormat;
    item->payload = format;
    item->buttonMask = format->buttonMask();
    QCheckBox* check = makeCheckRow(options, item, format->enabled != 0);
    QObject::connect(
        check, &QCheckBox::stateChanged, check,
        [format](int state) { format->enabled = state == Qt::Checked ? 1 : 0; }, Qt::DirectConnection);
}

// A format that begins as a copy of `model`.
std::unique_ptr<RasterFormat> newFormatFrom(const RasterFormat& model) {
    const auto params = Ref<IParam>::take(new_MemParam());
    Param_CopyTo(model.params.get(), params.get());
    const CXString name(Supp_Translate("<< Put new format name here >>"));
    const CXStringW description(Supp_Translate("<< Put new format description here >>"));
    writeValue(params.get(), "Description", description);
    writeValue(params.get(), "Generic", 0);
    return std::make_unique<RasterFormat>(name, params);
}

bool runRasterDialog(OptionDialog& options, RasterFormat* format, bool isNew, const QString& title) {
    RasterDialog dialog(&options.asDialog(), format, isNew);
    dialog.setWindowTitle(title);
    return runModal(dialog) == QDialog::Accepted;
}

void wipeNumbers(IParam* raster) {
    CXString name;
    for (int number = 1; readNumbered(raster, number, &name); ++number)
        raster->removeValue(numberKey(number));
}

void storeFormat(IParam* store, const RasterFormat& format) {
    const Ref<IParam> section = openChild(store, format.sectionPath(), 1);
    if (!section)
        return;
    Param_CopyTo(format.params.get(), section.get());
    writeValue(section.get(), "Description", format.description);
    writeValue(section.get(), "DefExt", format.defExt);
    writeValue(section.get(), "Enabled", int(format.enabled != 0));
    writeValue(section.get(), "CanDelete", int(format.canDelete != 0));
}

} // namespace

void loadRasterFormats(OptionDialog& options, TreeItem* rasterRootItem) {
    const Ref<IIOParams> store = appService<IIOParams>();
    const Ref<IParam> raster = openChild(store.get(), "Raster");
    if (!raster)
        return;
    readFormats(options, store.get(), raster.get());
    const QIcon icon = iconOf(rasterRootItem);
    for (RasterFormat* format : options.rasterFormats)
        makeFormatRow(options, rasterRootItem, icon, format);
}

void storeRasterFormats(OptionDialog& options, IKWUnknown* app) {
    const Ref<IIOParams> store = queryFor<IIOParams>(app);
    const Ref<IParam> raster = openChild(store.get(), "Raster");
    if (!raster)
        return;
    wipeNumbers(raster.get());
    int number = 1;
    // Meant: a deleted record removes its section even where a live one before it has the same name.
    for (const RasterFormat* format : options.rasterFormats) {
        if (format->deleted) {
            store->removeEntry(format->sectionPath());
        } else {
            writeValue(raster.get(), numberKey(number++), format->name);
            storeFormat(store.get(), *format);
        }
    }
}

void addRasterFormat(OptionDialog& options, TreeItem* item) {
    if (!appService<IIOParams>())
        return;
    std::unique_ptr<RasterFormat> format = newFormatFrom(*formatOf(item));
    if (!runRasterDialog(options, format.get(), true,
                         QCoreApplication::translate("Preferences", "Add Raster Format")))
        return;
    format->enabled = 1;
    format->canDelete = 1;
    options.rasterFormats.append(options.pageRecords.keep(std::move(format)));
    makeFormatRow(options, item->parentItem(), iconOf(item), options.rasterFormats.last());
}

void modifyRasterFormat(OptionDialog& options, TreeItem* item) {
    RasterFormat* format = formatOf(item);
    if (runRasterDialog(options, format, false,
                        QCoreApplication::translate("Preferences", "Modify Raster Format")))
        options.rowWidgets.value(item)->showText(hostqt::qString(format->description));
}

void deleteRasterFormat(OptionDialog& options, TreeItem* item) {
    RasterFormat* format = formatOf(item);
    // Meant: the blank before the colon.
    const QString question =
        QCoreApplication::translate("Preferences", "Do you really want to delete raster format :\n%1?")
            .arg(hostqt::qString(format->description));
    const EV_MB_RET answer = QHostMessageBox::question(
        QCoreApplication::translate("Preferences", "Raster format delete"), question, EV_MB_YES | EV_MB_NO);
    if (answer != EV_MB_YES)
        return;
    format->deleted = 1;
    takeOffRow(options, item);
    delete item;
}
