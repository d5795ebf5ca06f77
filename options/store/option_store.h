// Where the value of an option lives: which key, in which section, of which store.
#pragma once

#include "host/param.h"
#include "host/xstring.h"

// Names of the stores that values can be read from and written to.
constexpr const char* kStoreSysVar = "SysVar";
constexpr const char* kStoreProfile = "IProfile";

// Finds the store of the option of `node` below the option of `parent`; either may be null. `Key`, `Section`
// and `IFace` climb exactly one level. 1 when found; the three texts may then be empty. After a 0 the texts
// mean nothing.
int findStore(IParam* node, IParam* parent, CXString& key, CXString& section, CXString& store);
