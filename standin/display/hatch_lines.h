// The lines of a hatch pattern, cut off at the borders of the hatch.
#pragma once

#include "sdk/db/hatch.h"

#include <QLineF>
#include <optional>
#include <vector>

namespace standin {

struct HatchLines {
    std::vector<QLineF> lines; // in the coordinates of the hatch's plane; a dot has no length
    double finest = 0;         // the smallest distance between two lines of a kind
};

// None when the pattern has no lines, makes no sense, or would take more than `most` lines.
std::optional<HatchLines> hatchLines(const std::vector<OdDbHatch::Loop>& loops,
                                     const std::vector<OdDbHatch::PatternLines>& pattern, std::size_t most);

} // namespace standin
