// Reads the number of rows from the profile and the versions from the registered history.
#include "dwgprops/history_tab.h"

#include "dwgprops/current_drawing.h"
#include "dwgprops/custom_delegate.h"
#include "dwgprops/custom_table.h"
#include "dwgprops/db_text.h"
#include "dwgprops/file_history.h"
#include "host/app.h"
#include "host/files.h"
#include "host/typed_reads.h"

#include <QLabel>
#include <QVBoxLayout>
#include <memory>

namespace {

using Versions = std::vector<std::pair<OdString, OdString>>;

int maximumOfVersions() {
    int maximum = 5;
    const Ref<IProfile> profile = appService<IProfile>();
    readValue(openChild(profile.get(), "FileHistory").get(), "FILEHISTORYMAX", &maximum);
    return maximum;
}

// The answer is the history's own count, which may differ from the number of entries in `versions`.
int queryVersions(Versions& versions) {
    const OdSmartPtr<HostFileHistory> history = registeredFileHistory();
    if (history.isNull())
        return 0;
    std::wstring title = currentTitle().toStdWString();
    return history->query(title.data(), versions);
}

OdDbDate writeTime(const OdString& path) {
    FioFileInfo info{};
    Fio_GetFileInfo(path.c_str(), &info);
    OdDbDate date;
    date.setSecond(info.second);
    date.setMinute(info.minute);
    date.setHour(info.hour);
    date.setDay(info.day);
    date.setMonth(info.month);
    date.setYear(info.year);
    date.universalToLocal();
    return date;
}

} // namespace

HistoryTab::HistoryTab() {
    build(maximumOfVersions());
    layOut();
    fill();
}

void HistoryTab::build(int maxRows) {
    table = new QTableWidget(this);
    table->setObjectName(QStringLiteral("table"));
    setUpPropertyTable(*table, {tr("Date"), tr("Reason")});
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setRowCount(maxRows);
    table->setItemDelegate(new CustomDelegate(table));
}

void HistoryTab::layOut() {
    auto* const column = new QVBoxLayout(this);
    auto* const label = new QLabel(tr("File versions:"), this);
    label->setBuddy(table);
    table->setAccessibleName(label->text());
    column->addWidget(label);
    column->addWidget(table);
}

// A version whose file is missing leaves its row blank; the others keep their rows.
void HistoryTab::fill() {
    Versions versions;
    const int count = queryVersions(versions);
    for (int row = 0; row < count; ++row) {
        const auto entry = static_cast<std::size_t>(count - 1 - row);
        if (entry >= versions.size())
            continue;
        const auto& [path, reason] = versions[entry];
        if (!Fio_IsFileExist(path.c_str()))
            continue;
        setCell(row, 0, DbDateToLocalString(writeTime(path)));
        setCell(row, 1, tr(convertToNormalShow(reason).toUtf8().constData()));
    }
}

// The table does not take what lies past its last row, nor does it free it.
void HistoryTab::setCell(int row, int column, const QString& text) {
    auto item = std::make_unique<QTableWidgetItem>(text);
    table->setItem(row, column, item.get());
    if (table->item(row, column) == item.get())
        item.release();
}
