// The file form of parameter trees: a mapping is a section, a scalar or tagged list is a value, all in file
// order. The types of values survive a round trip.
#pragma once

#include "standin/params/mem_param.h"

#include <optional>
#include <string>
#include <vector>

namespace standin {

// What is wrong with a text, and where. Lines and columns count from 1.
struct YamlProblem {
    std::string file;
    int line = 0;
    int column = 0;
    std::string reason;
    std::string text() const; // "file:line:column: reason"
};

struct YamlResult {
    Ref<MemParam> tree;                 // never null; with a problem it holds what stands before it
    std::optional<YamlProblem> problem; // why the text could not be read to its end
    std::vector<YamlProblem> faults;    // entries that were left out, each by itself
    bool clean() const { return !problem && faults.empty(); }
    // The problem or else the first fault, with the number of the others; empty when clean.
    std::string report() const;
};

// `file` only serves the messages. Plain integers (also 0x...), reals with a decimal point, `!wide` text,
// `!size [a, b]`, `!rsize [x, y]`, `!rpoint [x, y]` have their types; any other text is 8-bit text. A name
// with
// '\' or '/' that leads to a mapping is a path.
YamlResult parseYaml(const std::string& text, const std::string& file, TreeRulesPtr rules = {});

// Values before sections. Interfaces and empty variants have no file form and are left out.
std::string writeYaml(const Section& section);

} // namespace standin
