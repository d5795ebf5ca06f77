// Brings the changes that another process wrote into a tree that has changes of its own.
#pragma once

#include "standin/params/section.h"

namespace standin {

// `base` is what both started from. What only `theirs` changed is taken over into `ours`, what only `ours`
// changed stays, and of what both changed `ours` stays. Sections at `wholeDepth` below the root and deeper
// are taken or kept as wholes (0: the tree itself), so that numbered lists never mix. Returns how many such
// wholes both have changed differently: of those theirs is lost.
int mergeInto(Section& ours, const Section& base, const Section& theirs, int wholeDepth);

} // namespace standin
