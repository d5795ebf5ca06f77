// How each kind of object is drawn: one entry in a table, and one small file in kinds/.
#pragma once

#include "sdk/db/entity.h"
#include "standin/display/pencil.h"

#include <string_view>
#include <vector>

namespace standin {

struct Kind {
    std::string_view name;                                                  // in drawing files
    void (*draw)(const OdDbEntity& entity, const Pencil& pencil) = nullptr; // null: it has no picture
    // Whether the kind, undrawn, is something that a user would miss.
    bool isMissed = false;
    // Where only some objects of a kind can be drawn: whether this one can. Null for all others.
    bool (*canDraw)(const OdDbEntity& entity) = nullptr;
};

const std::vector<Kind>& kinds(); // by name
// Null for a name that nobody knows.
const Kind* kindOf(std::string_view name);
const Kind* kindOf(const OdDbEntity& entity);
std::string_view kindName(const OdDbEntity& entity); // as in drawing files
// Whether there is something to see that isn't drawn.
bool isMissed(const OdDbEntity& entity);

// One function for each file in kinds/.
namespace draw {
void arc(const OdDbEntity& entity, const Pencil& pencil);
void attributeDefinition(const OdDbEntity& entity, const Pencil& pencil);
void circle(const OdDbEntity& entity, const Pencil& pencil);
void dimension(const OdDbEntity& entity, const Pencil& pencil);
bool canDrawDimension(const OdDbEntity& entity); // it names a block
void ellipse(const OdDbEntity& entity, const Pencil& pencil);
void face(const OdDbEntity& entity, const Pencil& pencil);
void hatch(const OdDbEntity& entity, const Pencil& pencil);
void helix(const OdDbEntity& entity, const Pencil& pencil);
void image(const OdDbEntity& entity, const Pencil& pencil);
void leader(const OdDbEntity& entity, const Pencil& pencil);
void line(const OdDbEntity& entity, const Pencil& pencil);
void mesh(const OdDbEntity& entity, const Pencil& pencil);
void mline(const OdDbEntity& entity, const Pencil& pencil);
void mtext(const OdDbEntity& entity, const Pencil& pencil);
void multiLeader(const OdDbEntity& entity, const Pencil& pencil);
bool canDrawMultiLeader(const OdDbEntity& entity); // it has context data
void ole(const OdDbEntity& entity, const Pencil& pencil);
void point(const OdDbEntity& entity, const Pencil& pencil);
void polyline(const OdDbEntity& entity, const Pencil& pencil);
void proxy(const OdDbEntity& entity, const Pencil& pencil);
bool canDrawProxy(const OdDbEntity& entity); // it has a picture of itself
void ray(const OdDbEntity& entity, const Pencil& pencil);
void reference(const OdDbEntity& entity, const Pencil& pencil);
void shape(const OdDbEntity& entity, const Pencil& pencil);
void solid(const OdDbEntity& entity, const Pencil& pencil);
void spline(const OdDbEntity& entity, const Pencil& pencil);
void table(const OdDbEntity& entity, const Pencil& pencil);
void text(const OdDbEntity& entity, const Pencil& pencil);
void tolerance(const OdDbEntity& entity, const Pencil& pencil);
void underlay(const OdDbEntity& entity, const Pencil& pencil);
void wipeout(const OdDbEntity& entity, const Pencil& pencil);
void xline(const OdDbEntity& entity, const Pencil& pencil);
} // namespace draw

} // namespace standin
