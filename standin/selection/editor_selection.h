// The selection of one document, and the prompt that asks for objects.
#pragma once

#include "sdk/db/database.h"
#include "standin/selection/selection_set.h"

#include <QString>
#include <functional>

namespace standin {

class Console;

class EditorSelection : public HostEditorSelection {
public:
    EditorSelection(OdDbDatabasePtr database, Console& console);
    ~EditorSelection() override;

    hostSelectionSetPtr getSelection() override { return current; }
    void setSelection(const hostSelectionSetPtr& set) override;
    void clearSelection() override;
    // Collects objects until Enter: by clicks, the words All, Last and Previous, and handles. kInputPicked
    // with at least one object, kInputNone with none, kInputCancelled on Escape, or a keyword's number.
    int selectObjects(hostSelectionSetPtr* result, int, const wchar_t* prompt, const wchar_t* keywords, int,
                      int, int, int, int) override;

    // What lies at a point; set by whoever draws the drawing.
    std::function<OdDbObjectIdArray(const OdGePoint3d& point)> objectsAt;

private:
    OdDbObjectIdArray objectsNamed(const QString& text) const;
    OdDbObjectIdArray objectOfHandle(const QString& text) const;
    void collect(hostSelectionSet& set, const OdDbObjectIdArray& found, const QString& answer);

    OdDbDatabasePtr drawing;
    Console& io;
    hostSelectionSetPtr current, previous;
};

} // namespace standin
