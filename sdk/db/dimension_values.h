// The values of dimension styles, as those entities see them that follow one.
#pragma once

#include "sdk/db/entity.h"

// Of the entity's own override or, without one, of the style that it names in the subclass `marker`. `code`
// is that of the value in a style.
double odDbDimensionValue(const OdDbEntity& entity, std::string_view marker, int code, double otherwise);
