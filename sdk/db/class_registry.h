// Which class opens the objects of which name in a drawing file.
#pragma once

#include "sdk/rx/rx_object.h"

#include <string_view>
#include <vector>

// Never null: unknown names are plain entities or plain objects, whose tags are kept.
OdRxClass* odDbClassForDxfName(std::string_view name, bool isEntity);
OdRxClass* odDbEntityClass();
// The kinds of entities that have a class of their own.
std::vector<std::string_view> odDbEntityNames();

// The class of the objects of a name, as new ones are made by it; null when none is registered.
OdRxClass* odDbRegisteredClass(std::string_view dxfName);
// Registers a class for objects (not entities) of a name, null for none; gives the former one.
OdRxClass* odDbRegisterClass(std::string_view dxfName, OdRxClass* objectClass);
