// Layers, and the viewports of a layout.
#pragma once

#include "sdk/db/entity.h"
#include "sdk/db/symbol_table.h"

class OdDbLayerTableRecord : public OdDbSymbolTableRecord {
    ODRX_DECLARE_CLASS(OdDbLayerTableRecord)
public:
    OdDbLayerTableRecord();
    // What lies on the layer goes with it, and so does the drawing's current layer. Throws eInvalidInput for
    // layer "0", which every drawing has.
    void setName(const OdString& name) override;
    bool isOff() const;
    void setIsOff(bool off);
    bool isFrozen() const;
    void setIsFrozen(bool frozen);
    bool isLocked() const;
    void setIsLocked(bool locked);
    int colorIndex() const; // 1 to 255
    void setColorIndex(int index);
    bool hasTrueColor() const;
    std::uint32_t trueColor() const; // 0x00RRGGBB
    OdString linetype() const;

private:
    bool flag(int bit) const;
    void setFlag(int bit, bool on);
};
using OdDbLayerTableRecordPtr = OdSmartPtr<OdDbLayerTableRecord>;

class OdDbLayerTable : public OdDbSymbolTable {
    ODRX_DECLARE_CLASS(OdDbLayerTable)
};
using OdDbLayerTablePtr = OdSmartPtr<OdDbLayerTable>;

// A window of a layout on model space. Number 1 is the layout itself.
class OdDbViewport : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbViewport)
public:
    OdDbViewport();
    int number() const;
    void setNumber(int number);
    OdGePoint3d centerPoint() const;
    double width() const;
    double height() const;
};
using OdDbViewportPtr = OdSmartPtr<OdDbViewport>;
