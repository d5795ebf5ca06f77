// Tags of the oldest drawing version as newer ones write them: with the markers of their classes.
#pragma once

#include "sdk/dxf/tag_list.h"

// The same record without its handle, for an object that is to enter a newer drawing. Values stay as they
// are.
DxfTagList odDbUpgradedEntity(const DxfTagList& old);
// Of a record of the table.
DxfTagList odDbUpgradedTableRecord(const DxfTagList& old);
