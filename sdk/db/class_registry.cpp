// Says which class an object of a file gets by its name there; unknown ones get the general classes.
#include "sdk/db/class_registry.h"

#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "sdk/db/hatch.h"
#include "sdk/db/layer_table.h"
#include "sdk/db/leader.h"
#include "sdk/db/polyline.h"
#include "sdk/db/spline.h"
#include "sdk/db/text.h"
#include "sdk/db/xrecord.h"

#include <map>
#include <string>
#include <utility>

namespace {

using Classes = std::map<std::string, OdRxClass*, std::less<>>;

const Classes& entityClasses() {
    static const Classes classes{
        {"LINE", OdDbLine::desc()},
        {"POINT", OdDbPoint::desc()},
        {"CIRCLE", OdDbCircle::desc()},
        {"ARC", OdDbArc::desc()},
        {"ELLIPSE", OdDbEllipse::desc()},
        {"SPLINE", OdDbSpline::desc()},
        {"HELIX", OdDbSpline::desc()},
        {"HATCH", OdDbHatch::desc()},
        {"LEADER", OdDbLeader::desc()},
        {"LWPOLYLINE", OdDbPolyline::desc()},
        {"POLYLINE", OdDb2dPolyline::desc()},
        {"TEXT", OdDbText::desc()},
        {"MTEXT", OdDbMText::desc()},
        {"ATTRIB", OdDbAttribute::desc()},
        {"ATTDEF", OdDbAttributeDefinition::desc()},
        {"INSERT", OdDbBlockReference::desc()},
        {"VIEWPORT", OdDbViewport::desc()},
        {"BLOCK", OdDbBlockBegin::desc()},
        {"ENDBLK", OdDbBlockEnd::desc()},
    };
    return classes;
}

// Tables are told apart by the name behind the colon.
Classes& objectClasses() {
    static Classes classes{
        {"DICTIONARY", OdDbDictionary::desc()},
        {"ACDBDICTIONARYWDFLT", OdDbDictionary::desc()},
        {"GROUP", OdDbGroup::desc()},
        {"XRECORD", OdDbXrecord::desc()},
        {"TABLE:BLOCK_RECORD", OdDbBlockTable::desc()},
        {"TABLE:LAYER", OdDbLayerTable::desc()},
        {"BLOCK_RECORD", OdDbBlockTableRecord::desc()},
        {"LAYER", OdDbLayerTableRecord::desc()},
        {"LTYPE", OdDbSymbolTableRecord::desc()},
        {"STYLE", OdDbSymbolTableRecord::desc()},
        {"VIEW", OdDbSymbolTableRecord::desc()},
        {"VPORT", OdDbSymbolTableRecord::desc()},
        {"UCS", OdDbSymbolTableRecord::desc()},
        {"APPID", OdDbSymbolTableRecord::desc()},
        {"DIMSTYLE", OdDbSymbolTableRecord::desc()},
    };
    return classes;
}

} // namespace

OdRxClass* odDbEntityClass() { return OdDbEntity::desc(); }

std::vector<std::string_view> odDbEntityNames() {
    std::vector<std::string_view> names;
    for (const auto& entry : entityClasses())
        names.push_back(entry.first);
    return names;
}

OdRxClass* odDbRegisteredClass(std::string_view dxfName) {
    const auto found = objectClasses().find(dxfName);
    return found == objectClasses().end() ? nullptr : found->second;
}

OdRxClass* odDbRegisterClass(std::string_view dxfName, OdRxClass* objectClass) {
    return std::exchange(objectClasses()[std::string(dxfName)], objectClass);
}

OdRxClass* odDbClassForDxfName(std::string_view name, bool isEntity) {
    const Classes& classes = isEntity ? entityClasses() : objectClasses();
    const auto found = classes.find(name);
    if (found != classes.end() && found->second)
        return found->second;
    if (!isEntity && name.substr(0, 6) == "TABLE:")
        return OdDbSymbolTable::desc();
    return isEntity ? OdDbEntity::desc() : OdDbObject::desc();
}
