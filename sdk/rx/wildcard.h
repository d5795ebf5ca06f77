// Names against patterns as they are typed at prompts.
#pragma once

#include "sdk/rx/od_string.h"

// Ignoring case: * any run, ? one character, # a digit, @ a letter, . neither letter nor digit, [ab], [a-z],
// [~ab] sets, ~ in front all but what follows, ` takes the next character as it stands, and commas part
// alternatives.
bool odutWcMatchNoCase(const OdString& name, const OdString& pattern);
