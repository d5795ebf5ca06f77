// The selection of one document, and the prompt that asks for objects.
#pragma once

#include "sdk/db/database.h"
#include "standin/selection/selection_set.h"

#include <QString>
#include <functional>

namespace standin {

class Console;

// Bits of the flags of selectObjects; the group commands of the plug-in pass the first one, too.
enum SelectionFlags {
    kOnePickEnds = 0x1000000, // the first objects that are picked are enough
    kKeywordKeeps = 1 << 28   // a keyword hands out what was collected before it
};

class EditorSelection : public HostEditorSelection {
public:
    EditorSelection(OdDbDatabasePtr database, Console& console);
    ~EditorSelection() override;

    hostSelectionSetPtr getSelection() override { return current; }
    void setSelection(const hostSelectionSetPtr& set) override;
    void clearSelection() override;
    // Collects objects until Enter: by clicks, by a window (a click beside every object begins one), the
    // words Window, Crossing, All, Last, Previous, Remove and Add, and handles. kInputPicked with at least
    // one object, kInputNone with none, kInputCancelled on Escape, or a keyword's number.
    int selectObjects(hostSelectionSetPtr* result, int, const wchar_t* prompt, const wchar_t* keywords, int,
                      int, int, int, int) override;

    // What lies at a point, and what lies in a window or, `crossing`, also across its border; set by whoever
    // draws the drawing.
    std::function<OdDbObjectIdArray(const OdGePoint3d& point)> objectsAt;
    std::function<OdDbObjectIdArray(const OdGePoint3d& first, const OdGePoint3d& second, bool crossing)>
        objectsIn;

    // The same with the groups that PICKSTYLE brings along; nothing while nobody draws.
    OdDbObjectIdArray pickedAt(const OdGePoint3d& point) const;
    OdDbObjectIdArray pickedIn(const OdGePoint3d& first, const OdGePoint3d& second, bool crossing) const;
    // A window drawn from right to left is a crossing one.
    static bool isCrossing(const OdGePoint3d& first, const OdGePoint3d& second) { return second.x < first.x; }
    void add(const OdDbObjectIdArray& ids); // to the selection
    void remove(const OdDbObjectIdArray& ids);
    // Whether the points that are picked for a prompt take objects out of what it has collected, as long as
    // it lasts or until this is called again.
    void setPicksRemove(bool remove) { picksRemove = remove; }

private:
    class Collection;
    enum class Window { BySide, Inside, Crossing };
    void collect(Collection& collection, const OdDbObjectIdArray& found, bool removing);
    bool take(Collection& collection, const QString& text);
    bool takeClick(Collection& collection, const OdGePoint3d& point);
    bool takeWindow(Collection& collection, Window kind);
    bool takeSecondCorner(Collection& collection, const OdGePoint3d& first, Window kind);
    OdDbObjectIdArray objectsNamed(const QString& word) const;
    OdDbObjectIdArray objectOfHandle(const QString& text) const;

    OdDbDatabasePtr drawing;
    Console& io;
    hostSelectionSetPtr current, previous;
    bool picksRemove = false;
};

} // namespace standin
