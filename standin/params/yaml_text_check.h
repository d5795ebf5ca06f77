// What the YAML library would take amiss silently is found before it sees the text.
#pragma once

#include "standin/params/yaml_tree.h"

namespace standin {

// The first character that is not UTF-8 or not allowed in YAML: the library replaces or stops at such.
std::optional<YamlProblem> findUnreadableText(const std::string& text, const std::string& file);

} // namespace standin
