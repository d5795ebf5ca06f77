// One drawing: its objects, header values, transactions and undo record, and the file it came from.
#pragma once

#include "sdk/db/date.h"
#include "sdk/db/object_id.h"
#include "sdk/db/units.h"
#include "sdk/ge/point3d.h"
#include "sdk/rx/res_buf.h"

#include <memory>

class OdDbDatabase;
class OdDbDatabaseReactor;
class OdFileDependencyManager;
class OdDbDatabaseImpl;
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;

class OdDbDatabase : public OdRxObject {
    ODRX_DECLARE_CLASS(OdDbDatabase)
public:
    // A new drawing with the usual tables and one empty layout.
    static OdDbDatabasePtr createEmpty();
    // Reads a drawing file of any version; the content decides, not the name. Throws OdError: eCantOpenFile,
    // eUnsupportedFileFormat, eDxfReadError, eInvalidDrawing, with file, line and reason in the description.
    static OdDbDatabasePtr readFile(const OdString& path);
    // The same from bytes in memory; `name` is only for messages.
    static OdDbDatabasePtr readBytes(std::string bytes, const OdString& name = L"");
    ~OdDbDatabase() override;

    // What was left out or mended while reading, with line numbers.
    const std::vector<OdString>& readWarnings() const;

    // Writes the drawing: unchanged parts byte for byte. A changed drawing first advances its revision
    // number, "last saved by" and times. The file is the old one or the new one, whatever happens. Throws
    // eFileWriteError with the reason. The drawing counts as unmodified afterwards and takes the name.
    void writeFile(const OdString& path);
    std::string writeBytes() const;
    // Whether the file is no longer what was read from it or last written to it: ask before writing over it.
    // False when it is gone.
    bool isFileChangedByOthers() const;
    OdString getFilename() const; // empty for a drawing that was never saved
    void setFilename(const OdString& path);
    OdString versionName() const; // "AC1032" and so on
    bool isModified() const;

    // System variables, found in any letter case. Those of the drawing are kept here; others come from the
    // application (see application_variables.h). getSysVar throws eKeyNotFound for an unknown name.
    OdResBufPtr getSysVar(const OdString& name) const;
    void setSysVar(const OdString& name, const OdResBuf* value);

    OdDbObjectId getBlockTableId() const;
    OdDbObjectId getLayerTableId() const;
    OdDbObjectId getLinetypeTableId() const;
    OdDbObjectId getTextStyleTableId() const;
    OdDbObjectId getDimStyleTableId() const;
    OdDbObjectId getViewportTableId() const;
    OdDbObjectId getNamedObjectsDictionaryId() const;
    OdDbObjectId getGroupDictionaryId(bool createIfNotFound = false);
    OdDbObjectId getModelSpaceId() const;
    OdDbObjectId getPaperSpaceId() const;
    OdDbObjectId currentSpaceId() const; // model space, or the paper space of the current layout
    // The viewport that takes input: in a layout its own (number 1) until a floating one is made active.
    OdDbObjectId activeViewportId() const;
    void setActiveViewportId(OdDbObjectId id);
    OdDbObjectId getOdDbObjectId(OdDbHandle handle) const; // null when there is none

    // Takes a new object in; the database holds it from then on. Throws eAlreadyInDb.
    OdDbObjectId addOdDbObject(OdDbObject* object, OdDbObjectId owner);

    OdDb::UnitsValue getINSUNITS() const;
    void setINSUNITS(OdDb::UnitsValue units);
    OdDbDate getTDCREATE() const;
    OdDbDate getTDUPDATE() const;
    OdDbDate getTDINDWG() const; // total editing time, this session included, as a span
    OdFileDependencyManager* fileDependencyManager();

    void startTransaction();
    void endTransaction(); // commits the innermost; throws eNoActiveTransactions
    void abortTransaction();
    int numActiveTransactions() const;

    // Opens a new undo record: one step of undo().
    void startUndoRecord();
    // Remembers this state; undoBack() returns to the last state remembered (to the first when there is none)
    // and forgets it.
    void setUndoMark();
    void undoBack();
    // true opens a block of records that are undone in one step, false closes it. Recording goes on inside.
    void blockUndoRecording(bool begin);
    bool isUndoBlockStarted() const;
    // One step back and forth; false when there is none or while a transaction is active.
    bool undo();
    bool redo();
    bool hasUndo() const;
    bool hasRedo() const;
    // What is changed from now on belongs to steps of this name, for whoever tells the user about them.
    void nameUndoSteps(const OdString& name);
    // Of the step that undo() or redo() would take; empty where there is none, or none with a name.
    OdString undoName() const;
    OdString redoName() const;

    void addReactor(OdDbDatabaseReactor* reactor);
    void removeReactor(OdDbDatabaseReactor* reactor);

    OdDbDatabaseImpl& impl() const { return *parts; }

private:
    OdDbDatabase();
    std::unique_ptr<OdDbDatabaseImpl> parts;
};

// The drawing's coordinate system. getCurrentUCS puts its matrix to world coordinates into `matrix`.
void getCurrentUCS(const OdDbDatabase* database, OdGeMatrix3d& matrix);
// Like system variables, neither undone nor aborted. Axes of length 1 at right angles.
void setCurrentUCS(OdDbDatabase* database, const OdGePoint3d& origin, const OdGeVector3d& xAxis,
                   const OdGeVector3d& yAxis);
OdGePoint3d get_UCSORG(const OdDbDatabase* database);
OdGeVector3d get_UCSXDIR(const OdDbDatabase* database);
OdGeVector3d get_UCSYDIR(const OdDbDatabase* database);
