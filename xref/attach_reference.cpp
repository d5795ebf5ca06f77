// The steps of one attach, from the check of the target space to the entry of the reference.
#include "xref/attach_reference.h"

#include "host/command_io.h"
#include "host/selection.h"
#include "host/text.h"
#include "sdk/db/layer_table.h"
#include "sdk/db/xref_man.h"
#include "xref/attach_failures.h"
#include "xref/attach_host.h"
#include "xref/create_xref_reference.h"
#include "xref/prompt_insertion.h"
#include "xref/prompt_rotation.h"
#include "xref/prompt_scale.h"
#include "xref/reference_row.h"
#include "xref/ucs_rotation.h"
#include "xref/xref_paths.h"

#include <QFileInfo>

namespace {

// What the user asked for, as the steps below share it.
struct Wishes {
    OdGePoint3d insertionPoint;
    OdGeScale3d scale;
    bool overlay, scaleOnScreen, insertionOnScreen, rotationOnScreen, uniform;
    int pathType;
    bool autoZoom;
    double rotation;
    ReferenceRow* row;
};

enum class Placing { Enter, KeepOut, Erase };

// Inside an active floating viewport a reference goes to model space.
OdDbObjectId targetSpace(const OdDbDatabasePtr& database) {
    const OdDbObjectId current = database->currentSpaceId();
    if (current != database->getPaperSpaceId())
        return current;
    const auto viewport = odrxCast<OdDbViewport>(database->activeViewportId().safeOpenObject());
    return viewport->number() > 1 ? database->getModelSpaceId() : current;
}

OdDb::UnitsValue prepareRecord(const OdDbBlockTableRecordPtr& record, const OdString& path,
                               bool hadDefinition, const Wishes& wishes) {
    if (!hadDefinition) {
        record->setPathName(path);
        OdDbXRefMan::load(record.get());
        OdDbXRefMan::setOverlaid(record.get(), wishes.overlay);
        if (wishes.pathType != kFullPath)
            record->setPathName(hostqt::odString(
                savedFormOfPath(record->database(), hostqt::qString(path), wishes.pathType)));
    }
    record->downgradeOpen();
    return record->blockInsertUnits();
}

void placeAsGiven(const OdDbDatabasePtr& database, const OdDbBlockReferencePtr& reference, double factor,
                  const Wishes& wishes) {
    if (!wishes.insertionOnScreen) {
        OdGeMatrix3d toWorld = OdGeMatrix3d::kIdentity;
        getCurrentUCS(database.get(), toWorld);
        OdGePoint3d position = wishes.insertionPoint;
        reference->setPosition(position.transformBy(toWorld));
    }
    const OdGeScale3d& scale = wishes.scale;
    reference->setScaleFactors({scale.sx / factor, scale.sy / factor, scale.sz / factor});
    if (!wishes.rotationOnScreen)
        reference->setRotation(ucsRotation(reference, wishes.rotation));
}

// A cancel ends a new definition at once; an existing one goes on with the next prompt, and what counts is
// how the last prompt ended. The difference is meant.
Placing placeOnScreen(const OdDbBlockReferencePtr& reference, bool hadDefinition, double factor,
                      Wishes& wishes) {
    bool cancelled = false;
    if (wishes.insertionOnScreen)
        cancelled = promptInsertion(wishes.scaleOnScreen, wishes.rotationOnScreen, reference, factor) ==
                    kInputCancelled;
    if (cancelled && !hadDefinition)
        return Placing::Erase;
    if (wishes.scaleOnScreen)
        cancelled = promptScale(reference, wishes.uniform, factor) == kInputCancelled;
    if (cancelled && !hadDefinition)
        return Placing::Erase;
    if (wishes.rotationOnScreen)
        cancelled = promptRotation(reference) == kInputCancelled;
    if (!cancelled)
        return Placing::Enter;
    return hadDefinition ? Placing::KeepOut : Placing::Erase;
}

void enterSpace(const OdDbDatabasePtr& database, OdDbObjectId space, const OdDbBlockReferencePtr& reference,
                bool autoZoom) {
    database->startUndoRecord();
    const auto record = odrxCast<OdDbBlockTableRecord>(space.safeOpenObject(OdDb::kForWrite));
    const OdDbObjectId id = record->appendOdDbEntity(reference.get());
    if (autoZoom)
        ZoomObject(id);
}

bool attachTo(HostCommandIO* io, const OdString& path, Wishes& wishes) {
    const QString file = hostqt::qString(path);
    const OdDbDatabasePtr database = attach::database();
    const OdDbObjectId space = targetSpace(database);
    if (isCircular(file)) {
        tellCircle(io, path);
        return false;
    }
    QString blockName;
    OdDbBlockReferencePtr reference;
    bool hadDefinition = false;
    OdDbObjectId blockId;
    if (!createXRefReference(file, blockName, wishes.overlay, reference, hadDefinition, blockId)) {
        tellNoName(path);
        return false;
    }
    const auto record = odrxCast<OdDbBlockTableRecord>(blockId.safeOpenObject(OdDb::kForWrite));
    const OdDb::UnitsValue blockUnits = prepareRecord(record, path, hadDefinition, wishes);
    const double factor = GetUnitFactor(database->getINSUNITS(), blockUnits);
    placeAsGiven(database, reference, factor, wishes);
    const Placing placing = placeOnScreen(reference, hadDefinition, factor, wishes);
    if (placing == Placing::Erase) {
        eraseNewXRef(reference);
        return false;
    }
    if (placing == Placing::Enter && wishes.row)
        wishes.row->add(reference);
    if (placing == Placing::Enter)
        enterSpace(database, space, reference, wishes.autoZoom);
    return true;
}

} // namespace

// By base name alone and with case, on purpose: two drawings of one base name can't be attached to each
// other.
bool isCircular(const QString& path) {
    return QFileInfo(attach::documentFile()).baseName() == QFileInfo(path).baseName();
}

bool attachReference(const OdString& path, const OdGePoint3d& insertionPoint, const OdGeScale3d& scale,
                     bool overlay, bool scaleOnScreen, bool insertionOnScreen, bool rotationOnScreen,
                     bool uniform, int pathType, bool autoZoom, double rotation, ReferenceRow* row) {
    Wishes wishes{insertionPoint,
                  scale,
                  overlay,
                  scaleOnScreen,
                  insertionOnScreen,
                  rotationOnScreen,
                  uniform,
                  pathType,
                  autoZoom,
                  rotation,
                  row};
    HostCommandIO* const io = attach::io();
    try {
        return attachTo(io, path, wishes);
    } catch (const OdError& error) {
        tellAttachFailure(io, path, error);
    } catch (...) {
        tellUnknownAttachFailure(io, path);
    }
    return false;
}
