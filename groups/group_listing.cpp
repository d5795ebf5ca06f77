#include "groups/group_listing.h"

#include "groups/current_drawing.h"
#include "groups/group_messages.h"
#include "host/text.h"
#include "sdk/rx/wildcard.h"

#include <QObject>

namespace {

constexpr std::size_t kTab = 12;

// Column positions of the second to fourth field; a row stands two characters further in than the header.
struct Columns {
    std::size_t selectable, anonymous, description;
};
constexpr Columns kHeaderColumns{32, 45, 58};
constexpr Columns kRowColumns{34, 47, 60};

// A line that is longer than the column moves the column on by tabs.
void padTo(std::wstring& line, std::size_t column) {
    while (column < line.size())
        column += kTab;
    line.resize(column, L' ');
}

std::wstring tabulated(std::wstring line, const Columns& columns, const std::wstring& selectable,
                       const std::wstring& anonymous, const std::wstring& description) {
    padTo(line, columns.selectable);
    line += selectable;
    padTo(line, columns.anonymous);
    line += anonymous;
    padTo(line, columns.description);
    return line + description;
}

std::wstring header() {
    return tabulated(QObject::tr("Group name").toStdWString(), kHeaderColumns,
                     QObject::tr("Selectable").toStdWString(), QObject::tr("Anonymous").toStdWString(),
                     QObject::tr("Description").toStdWString());
}

// "Yes" and "No" are not translated here: that is meant.
std::wstring yesOrNo(bool yes) { return yes ? L"Yes" : L"No"; }

std::wstring row(const OdString& name, const OdDbGroupPtr& group) {
    return tabulated(L"  " + name.wide(), kRowColumns, yesOrNo(group->isSelectable()),
                     yesOrNo(group->isAnonymous()), group->description().wide());
}

// The number of groups listed. A null dictionary has none.
int listMatches(HostCommandIO& io, const OdDbDictionaryPtr& dictionary, const OdString& pattern) {
    int listed = 0;
    if (dictionary.isNull())
        return listed;
    for (const auto entry = dictionary->newIterator(); !entry->done(); entry->next()) {
        if (!odutWcMatchNoCase(entry->name(), pattern))
            continue;
        if (listed++ == 0)
            io.printLine(header().c_str());
        io.printLine(row(entry->name(), odrxCast<OdDbGroup>(entry->getObject())).c_str());
    }
    return listed;
}

} // namespace

int HelpGroupName(HostCommandIO& io, const OdDbDatabasePtr& database) {
    printLine(io, QObject::tr("Enter group name(s) to list <*>:"));
    OdString pattern;
    if (io.getInputText(0, 0, 0, &pattern, 0) != kInputTextOk) {
        printLine(io, QObject::tr("[HelpGroupName] getInputText() returned false or canceled."));
        return kInputCancelled;
    }
    const OdString everything(L"*");
    if (pattern.isEmpty())
        pattern = everything;
    if (listMatches(io, openGroupDictionary(database), pattern) == 0)
        printLine(io, pattern == everything ? QObject::tr("No groups found.")
                                            : QObject::tr("No matching group names found."));
    return kInputPicked;
}
