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
