// A block shown at a place: inserts, and external references on screen.
#pragma once

#include "sdk/db/entity.h"

class OdDbBlockReference : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbBlockReference)
public:
    OdDbBlockReference();
    // Null when the block is missing.
    OdDbObjectId blockTableRecord() const;
    void setBlockTableRecord(OdDbObjectId block);
    OdString blockName() const;
    void setBlockName(const OdString& name);
    // In world coordinates; the file keeps it in those of the reference's plane.
    OdGePoint3d position() const;
    void setPosition(const OdGePoint3d& point);
    OdGeScale3d scaleFactors() const;
    // 0 is taken: the reference then shows nothing along that axis. Throws eInvalidInput for a factor that
    // is no finite number.
    void setScaleFactors(const OdGeScale3d& factors);
    double rotation() const; // radians, in the plane
    void setRotation(double angle);
    // Rows and columns of a reference that repeats its block; 1 and 1 otherwise.
    int rowCount() const;
    int columnCount() const;
    double rowSpacing() const;
    double columnSpacing() const;
    // From the block's coordinates to world coordinates, the block's base point included; for one cell.
    OdGeMatrix3d blockTransform(int row = 0, int column = 0) const;
    OdDbObjectIdArray attributes() const;
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;

private:
    OdDbObjectId pendingBlock; // the block chosen while the reference is in no database
    void enteredDatabase() override;
};
using OdDbBlockReferencePtr = OdSmartPtr<OdDbBlockReference>;
