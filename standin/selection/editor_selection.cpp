// Asks for objects until the user is done: by click, window, handle or word.
#include "standin/selection/editor_selection.h"

#include "host/text.h"
#include "sdk/db/block_table.h"
#include "sdk/db/progress.h"
#include "sdk/rx/od_error.h"
#include "standin/console/console.h"
#include "standin/selection/group_members.h"

#include <QRegularExpression>
#include <algorithm>
#include <unordered_set>

namespace standin {

namespace {

OdDbObjectIdArray idsOf(const hostSelectionSetPtr& set) {
    OdDbObjectIdArray ids;
    if (!set.isNull())
        set->objectIds(ids);
    return ids;
}

hostSelectionSetPtr setOf(OdDbDatabase* database, const OdDbObjectIdArray& ids) {
    const hostSelectionSetPtr set = hostSelectionSet::createObject(database);
    for (const OdDbObjectId& id : ids)
        set->append(id);
    return set;
}

OdDbObjectIdArray without(const OdDbObjectIdArray& ids, const OdDbObjectIdArray& removed) {
    const std::unordered_set<OdDbObjectId> out(removed.begin(), removed.end());
    OdDbObjectIdArray left;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(left),
                 [&](const OdDbObjectId& id) { return out.count(id) == 0; });
    return left;
}

// Whether an answer is the word or its beginning, with or without the mark of a global word.
bool means(const QString& answer, const char* word) {
    const QString text = answer.startsWith(QLatin1Char('_')) ? answer.mid(1) : answer;
    return !text.isEmpty() && QString::fromLatin1(word).startsWith(text, Qt::CaseInsensitive);
}

} // namespace

// What a prompt has collected so far. It is highlighted as long as the prompt lasts; what was so before
// stays.
class EditorSelection::Collection {
public:
    ~Collection() {
        for (const OdDbObjectId& id : highlighted)
            highlight(id, false);
        HostUpdateDisplay();
    }
    // All of them, or none when the user cancels.
    bool add(const OdDbObjectIdArray& found) {
        const std::size_t before = ids.size();
        try {
            for (std::size_t i = 0; i < found.size(); ++i) {
                if (taken.insert(found[i]).second) {
                    ids.push_back(found[i]);
                    highlight(found[i], true);
                }
                odDbReportProgress(OdDbProgressMeter::kSelecting, i + 1, found.size());
            }
            return true;
        } catch (const OdError& error) {
            if (error.code() != eUserBreak)
                throw;
        }
        remove({ids.begin() + static_cast<std::ptrdiff_t>(before), ids.end()});
        return false;
    }
    void remove(const OdDbObjectIdArray& found) {
        ids = without(ids, found);
        for (const OdDbObjectId& id : found)
            if (taken.erase(id) && highlighted.erase(id))
                highlight(id, false);
    }
    OdDbObjectIdArray ids;
    bool removing = false;

private:
    void highlight(const OdDbObjectId& id, bool on) {
        const auto entity = odrxQuery<OdDbEntity>(id.openObject().get());
        if (entity.isNull() || entity->isHighlighted() == on)
            return;
        entity->highlight(on);
        if (on)
            highlighted.insert(id);
    }
    std::unordered_set<OdDbObjectId> taken, highlighted;
};

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

void EditorSelection::add(const OdDbObjectIdArray& ids) {
    OdDbObjectIdArray all = without(idsOf(current), ids);
    all.insert(all.end(), ids.begin(), ids.end());
    current = setOf(drawing.get(), all);
    HostUpdateDisplay();
}

void EditorSelection::remove(const OdDbObjectIdArray& ids) {
    current = setOf(drawing.get(), without(idsOf(current), ids));
    HostUpdateDisplay();
}

OdDbObjectIdArray EditorSelection::pickedAt(const OdGePoint3d& point) const {
    return objectsAt ? withGroupMembers(*drawing, objectsAt(point)) : OdDbObjectIdArray();
}

OdDbObjectIdArray EditorSelection::pickedIn(const OdGePoint3d& first, const OdGePoint3d& second,
                                            bool crossing) const {
    return objectsIn ? withGroupMembers(*drawing, objectsIn(first, second, crossing)) : OdDbObjectIdArray();
}

int EditorSelection::selectObjects(hostSelectionSetPtr* result, int, const wchar_t* prompt,
                                   const wchar_t* keywords, int flags, int, int, int, int) {
    Collection collection;
    picksRemove = false;
    for (;;) {
        OdGePoint3d point;
        OdString text;
        const int answer =
            io.getPoint(nullptr, &point, prompt, keywords, kAnyText | kPicksObjects, &text, nullptr);
        if (answer == kInputNone)
            break;
        if (answer != kInputPicked && answer != kInputTyped) {
            if (answer != kInputCancelled && (flags & kKeywordKeeps))
                *result = setOf(drawing.get(), collection.ids);
            return answer;
        }
        const bool goesOn =
            answer == kInputPicked ? takeClick(collection, point) : take(collection, hostqt::qString(text));
        if (!goesOn)
            return kInputCancelled;
        if ((flags & kOnePickEnds) && !collection.ids.empty())
            break;
    }
    if (collection.ids.empty())
        return kInputNone;
    *result = setOf(drawing.get(), collection.ids);
    setSelection(*result);
    return kInputPicked;
}

// False, as from the next three, when the user cancels.
bool EditorSelection::take(Collection& collection, const QString& text) {
    if (means(text, "Window"))
        return takeWindow(collection, Window::Inside);
    if (means(text, "Crossing"))
        return takeWindow(collection, Window::Crossing);
    if (means(text, "Remove") || text.compare(QLatin1String("Add"), Qt::CaseInsensitive) == 0) {
        collection.removing = means(text, "Remove");
        return true;
    }
    const OdDbObjectIdArray found = objectsNamed(text);
    if (found.empty())
        io.print(Console::tr("\"%1\" names no object: click one, or type Window, Crossing, All, Last, "
                             "Previous, Remove, Add or a handle.")
                     .arg(text));
    else
        collect(collection, found, collection.removing);
    return true;
}

bool EditorSelection::takeClick(Collection& collection, const OdGePoint3d& point) {
    const OdDbObjectIdArray found = pickedAt(point);
    if (found.empty() && objectsIn)
        return takeSecondCorner(collection, point, Window::BySide);
    collect(collection, found, collection.removing || picksRemove);
    return true;
}

bool EditorSelection::takeWindow(Collection& collection, Window kind) {
    OdGePoint3d first;
    const int answer = io.getPoint(nullptr, &first, Console::tr("First corner:").toStdWString().c_str(),
                                   nullptr, 0, nullptr, nullptr);
    return answer == kInputPicked ? takeSecondCorner(collection, first, kind) : answer == kInputNone;
}

bool EditorSelection::takeSecondCorner(Collection& collection, const OdGePoint3d& first, Window kind) {
    OdGePoint3d second;
    const int answer = io.getPoint(&first, &second, Console::tr("Opposite corner:").toStdWString().c_str(),
                                   nullptr, kRectangle, nullptr, nullptr);
    if (answer != kInputPicked)
        return answer == kInputNone;
    const bool crossing = kind == Window::BySide ? isCrossing(first, second) : kind == Window::Crossing;
    collect(collection, pickedIn(first, second, crossing), collection.removing || picksRemove);
    return true;
}

void EditorSelection::collect(Collection& collection, const OdDbObjectIdArray& found, bool removing) {
    if (removing)
        collection.remove(found);
    const bool isDone = removing || collection.add(found);
    HostUpdateDisplay();
    if (!isDone)
        return io.print(Console::tr("*Cancel*"));
    io.print(Console::tr("%1 found, %2 in all.").arg(found.size()).arg(collection.ids.size()));
}

OdDbObjectIdArray EditorSelection::objectsNamed(const QString& text) const {
    const auto space = odrxCast<OdDbBlockTableRecord>(drawing->currentSpaceId().safeOpenObject());
    if (means(text, "All"))
        return space->entityIds();
    if (means(text, "Last"))
        return space->entityIds().empty() ? OdDbObjectIdArray()
                                          : OdDbObjectIdArray{space->entityIds().back()};
    return means(text, "Previous") ? idsOf(previous) : objectOfHandle(text);
}

// A whole hexadecimal word; the handles of dictionaries, tables and objects of other spaces select nothing.
OdDbObjectIdArray EditorSelection::objectOfHandle(const QString& text) const {
    static const QRegularExpression handle(QStringLiteral("^[0-9A-Fa-f]{1,16}$"));
    if (!handle.match(text).hasMatch())
        return {};
    const OdDbObjectId id = drawing->getOdDbObjectId(OdDbHandle(hostqt::odString(text)));
    const auto entity = odrxQuery<OdDbEntity>(id.openObject().get());
    const bool isHere = !entity.isNull() && entity->ownerId() == drawing->currentSpaceId();
    return isHere ? OdDbObjectIdArray{id} : OdDbObjectIdArray();
}

} // namespace standin
