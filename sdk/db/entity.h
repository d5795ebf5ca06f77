// What can be drawn: an object with layer, colour and place. Coordinates are in world coordinates unless the
// class says otherwise.
#pragma once

#include "sdk/db/object.h"
#include "sdk/rx/color.h"

class OdDbFullSubentPath;

class OdDbEntity : public OdDbObject {
    ODRX_DECLARE_CLASS(OdDbEntity)
public:
    enum ColorIndex { kByBlock = 0, kByLayer = 256 };

    // The place of a property that every entity has, by its code: in the common part, or else anywhere in the
    // record where the code can't mean anything else. npos when there is none.
    std::size_t commonTag(int code) const;
    OdString layer() const; // "0" where the file says nothing
    void setLayer(const OdString& name);
    OdDbObjectId layerId() const; // null when the layer is missing
    int colorIndex() const;       // 0 by block, 1 to 255, 256 by layer
    void setColorIndex(int index);
    bool hasTrueColor() const;
    std::uint32_t trueColor() const; // 0x00RRGGBB
    void setTrueColor(std::uint32_t rgb);
    OdString linetype() const;
    bool isVisible() const;
    bool isInPaperSpace() const;
    // The block, or the space, that holds the entity.
    OdDbObjectId blockId() const { return ownerId(); }
    OdGeVector3d normal() const;
    void setNormal(const OdGeVector3d& normal);

    // Shown as chosen, or no more. Neither undone nor saved; allowed while open for read.
    void highlight(bool on = true, const OdDbFullSubentPath* path = nullptr, bool all = false);
    bool isHighlighted() const;

    // The box around the entity; eInvalidInput when it has none.
    OdResult getGeomExtents(OdGeExtents3d& extents) const;
    // Adds what the entity covers, moved by `toWorld`. Unknown entities cover nothing.
    virtual void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const;

protected:
    std::int64_t commonInteger(int code, std::int64_t otherwise = 0) const;
    // Tags of a new entity: its name and the parts that every entity has, then the marker of its class.
    void startEntity(std::string_view name, std::string_view marker);
    OdGeMatrix3d planeToWorld() const { return OdGeMatrix3d::planeToWorld(normal()); }
};
using OdDbEntityPtr = OdSmartPtr<OdDbEntity>;
