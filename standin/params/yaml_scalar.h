// The types of values in the file form: how a scalar is read and how it is written.
#pragma once

#include "host/variant.h"

#include <optional>
#include <string>
#include <vector>

namespace standin {

// `tag` is "?" for a plain scalar, "!" for a quoted one, else the tag itself. Nothing for a text that does
// not fit its tag, or an unknown tag.
std::optional<CKWVariant> scalarFromYaml(const std::string& tag, const std::string& text);
std::optional<CKWVariant> listFromYaml(const std::string& tag, const std::vector<std::string>& items);
bool isListTag(const std::string& tag);

// Nothing for a variant that has no file form.
std::optional<std::string> valueToYaml(const CKWVariant& value);
// A name or text of a file in the local code page.
std::string localFromUtf8(const std::string& utf8);
// A name, in quotes unless it is a plain word.
std::string nameToYaml(const std::string& name);

} // namespace standin
