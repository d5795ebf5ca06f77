#include "standin/selection/editor_selection.h"

#include "host/text.h"
#include "sdk/db/block_table.h"
#include "standin/console/console.h"

namespace standin {

EditorSelection::EditorSelection(OdDbDatabasePtr database, Console& console)
    : drawing(std::move(database)), io(console) {}

EditorSelection::~EditorSelection() = default;

void EditorSelection::setSelection(const hostSelectionSetPtr& set) {
    if (!current.isNull() && current->count() > 0)
        previous = current;
    current = set;
    HostUpdateDisplay();
}

void EditorSelection::clearSelection() { setSelection({}); }

int EditorSelection::selectObjects(hostSelectionSetPtr* result, int, const wchar_t* prompt,
                                   const wchar_t* keywords, int, int, int, int, int) {
    const hostSelectionSetPtr set = hostSelectionSet::createObject(drawing.get());
    for (;;) {
        OdGePoint3d point;
        OdString text;
        const int answer = io.getPoint(nullptr, &point, prompt, keywords, kAnyText, &text, nullptr);
        if (answer == kInputPicked)
            collect(*set, objectsAt ? objectsAt(point) : OdDbObjectIdArray(), {});
        else if (answer == kInputTyped)
            collect(*set, objectsNamed(hostqt::qString(text)), hostqt::qString(text));
        else if (answer != kInputNone)
            return answer;
        else
            break;
    }
    if (set->count() == 0)
        return kInputNone;
    *result = set;
    setSelection(set);
    return kInputPicked;
}

void EditorSelection::collect(hostSelectionSet& set, const OdDbObjectIdArray& found, const QString& answer) {
    for (const OdDbObjectId& id : found)
        set.append(id);
    if (found.empty() && !answer.isEmpty())
        io.print(Console::tr("\"%1\" names no object: click one, or type All, Last, Previous or a handle.")
                     .arg(answer));
    else
        io.print(Console::tr("%1 found, %2 in all.").arg(found.size()).arg(set.count()));
}

OdDbObjectIdArray EditorSelection::objectsNamed(const QString& text) const {
    const auto means = [&](const char* word) {
        return QString::fromLatin1(word).startsWith(text, Qt::CaseInsensitive);
    };
    const auto space = odrxCast<OdDbBlockTableRecord>(drawing->currentSpaceId().safeOpenObject());
    if (means("All"))
        return space->entityIds();
    if (means("Last"))
        return space->entityIds().empty() ? OdDbObjectIdArray()
                                          : OdDbObjectIdArray{space->entityIds().back()};
    if (!means("Previous"))
        return objectOfHandle(text);
    OdDbObjectIdArray ids;
    if (!previous.isNull())
        previous->objectIds(ids);
    return ids;
}

OdDbObjectIdArray EditorSelection::objectOfHandle(const QString& text) const {
    const OdDbObjectId id = drawing->getOdDbObjectId(OdDbHandle(hostqt::odString(text)));
    return id.isNull() || id.isErased() ? OdDbObjectIdArray() : OdDbObjectIdArray{id};
}

} // namespace standin
