// What the kinds of objects are drawn with: shapes in the colour and the pen of the object, at its place.
#pragma once

#include "sdk/db/entity.h"
#include "standin/display/place.h"

#include <QString>

namespace standin {

class ItemBuilder;

class Pencil {
public:
    // All of them outlive the pencil.
    Pencil(ItemBuilder& builder, const Place& place, const LayerLook& layer, const Look& look)
        : maker(builder), where(place), layerLook(layer), ownLook(look) {}
    // The same in another colour.
    Pencil inked(Ink ink) const;
    // The same without the line type of the object.
    Pencil plain() const;

    const OdGeMatrix3d& world() const { return where.toWorld; } // from the coordinates of the object's block
    OdGeMatrix3d plane(const OdDbEntity& entity) const {
        return where.toWorld * OdGeMatrix3d::planeToWorld(entity.normal());
    }
    const Place& place() const { return where; }
    Ink ink() const { return ownLook.ink; }
    const LayerLooks& looks() const { return *where.layers; }
    const DrawingVariables& variables() const;

    // Points are moved by the matrix. Nothing is drawn of what has a place that is no number, or is too far
    // away: it is false then.
    bool draw(Shape shape) const;
    bool path(const std::vector<OdGePoint3d>& points, const OdGeMatrix3d& matrix) const; // of two or more
    // center + zero * cos(a) + quarter * sin(a)
    void arc(const OdGePoint3d& center, const OdGeVector3d& zero, const OdGeVector3d& quarter, double start,
             double sweep, const OdGeMatrix3d& matrix) const;
    void fill(const std::vector<OdGePoint3d>& corners, const OdGeMatrix3d& matrix) const; // of three or more
    // From `start` on without an end.
    void endless(const OdGePoint3d& start, const OdGeVector3d& direction, const OdGeMatrix3d& matrix) const;
    // The contents of a block; false when there are none to be had.
    bool block(OdDbObjectId block, const OdGeMatrix3d& toWorld, const Repeats& repeats = {}) const;
    bool block(const OdDbEntity& entity,
               const OdString& name) const; // as if drawn in the place of the entity
    // The mark of a reference without contents.
    void missing(const OdGePoint3d& at, const OdString& name) const;
    // An entity that belongs to the one that is drawn.
    void part(const OdDbEntity& entity) const;
    bool isLayerOff() const { return layerLook.off; }
    // Of a text no more than this; the object is marked as one that is shown only in part then.
    std::wstring shortened(std::wstring text, std::size_t most) const;
    bool isFull() const; // asked before more is drawn: no more will be
    // Lines of hatch patterns that may still be drawn, in all hatches together.
    std::size_t hatchLinesLeft() const;
    void countHatchLines(std::size_t lines) const;

private:
    ItemBuilder& maker;
    const Place& where;
    const LayerLook& layerLook;
    Look ownLook;
};

} // namespace standin
