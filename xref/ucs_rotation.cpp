// The X axis of the current coordinate system as seen in the plane of a reference.
#include "xref/ucs_rotation.h"

#include "xref/attach_host.h"

double ucsRotation(const OdDbBlockReferencePtr& reference, double angle) {
    const OdDbDatabasePtr database = attach::database();
    OdGeVector3d direction = database.isNull() ? OdGeVector3d::kXAxis : get_UCSXDIR(database.get());
    direction.transformBy(OdGeMatrix3d::worldToPlane(reference->normal()));
    return OdGeVector3d::kXAxis.angleTo(direction, OdGeVector3d::kZAxis) + angle;
}
