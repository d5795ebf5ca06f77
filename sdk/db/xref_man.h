// External references: blocks whose contents are another drawing.
#pragma once

#include "sdk/db/block_table.h"

#include <functional>
#include <vector>

class OdDbXRefManExt {
public:
    // A new, unloaded reference with its path and no contents. Throws eDuplicateKey for a taken name. Neither
    // a password nor a wished-for handle is of use to text files.
    static OdDbObjectId addNewXRefDefBlock(OdDbDatabase* database, const OdString& path, const OdString& name,
                                           bool overlay, const OdString& password = OdString(),
                                           OdDbHandle handle = OdDbHandle());
};

class OdDbXRefMan {
public:
    // Reads the drawing of a reference, and those that it attaches in turn: overlays are not carried on, a
    // drawing that is being loaded already is not entered again, and one that several refer to is read once
    // and shared. How many and how deep is limited, see xref_opening.h. Sets the block's units. eOk when
    // loaded; no exception, but the code of the failure, for a null record, a block that is no reference, and
    // a missing or unreadable file. A reference that is loaded from that very file, unchanged since, stays as
    // it is: unload it first to have it read anew.
    static OdResult load(OdDbBlockTableRecord* record);
    static void unload(OdDbBlockTableRecord* record);
    static void setOverlaid(OdDbBlockTableRecord* record, bool overlaid);
    // Loads every reference of a drawing that was just opened; gives those that failed. That is no change of
    // the drawing: there is nothing to undo, and a block whose file has other units by now keeps its own
    // until load() is called for it.
    static OdDbObjectIdArray loadAll(OdDbDatabase* database);
    // The file that a saved path stands for, looked for as it stands, beside the drawing, by its name alone
    // beside the drawing, and likewise in the search folders; empty when there is none.
    static OdString findFile(const OdDbDatabase& database, const OdString& savedPath);
    // Asked at each search that has come so far; none at first, and none again for an empty function.
    static void setSearchFolders(std::function<std::vector<OdString>()> folders);
};

// The feature that file dependencies of references are filed under.
constexpr const wchar_t* kOdDbXrefFeature = L"Acad:XRef";
