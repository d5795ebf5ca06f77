// Brings the changes that another process wrote into a tree that has changes of its own.
#pragma once

#include "standin/params/section.h"

#include <optional>
#include <string>
#include <vector>

namespace standin {

// A change of the other process that has given way to our own.
struct Overruled {
    std::string path;                 // from the root, with '/'; empty: the tree itself
    bool whole = false;               // a section with all that it holds, else a value
    std::optional<std::string> value; // theirs, as it stands in the file; nothing when they removed it
};

// `base` is what both started from. What only `theirs` changed is taken over into `ours`, what only `ours`
// changed stays, and of what both changed `ours` stays. Sections at `wholeDepth` below the root and deeper
// are taken or kept as wholes (0: the tree itself), so that numbered lists never mix. Returns what
// both have changed differently: of that theirs is lost.
std::vector<Overruled> mergeInto(Section& ours, const Section& base, const Section& theirs, int wholeDepth);

} // namespace standin
