// Entities that follow another one in its file and belong to it: vertices and attributes.
#pragma once

#include "sdk/db/object_id.h"

#include <string_view>

// In file order, without erased ones and without the end mark.
OdDbObjectIdArray odDbSubEntities(OdDbObjectId owner);
bool odDbIsSubEntityName(std::string_view dxfName);
