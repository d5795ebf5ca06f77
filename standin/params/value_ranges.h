// Which numbers the data of the options allows for values that users can also write into a file by hand.
#pragma once

#include "host/variant.h"

#include <QStringList>
#include <map>
#include <string>

class IParam;

namespace standin {

class Section;

struct ValueRange {
    double lowest = 0, highest = 0;
};

// By the path of the value, with '/' between its parts.
using ValueRanges = std::map<std::string, ValueRange, std::less<>>;

// Of the rows below `options` that keep a number in the profile and have `Limits`. A row finds its section
// and store at itself or else at the row above it, as the options dialog does.
ValueRanges rangesOfProfile(IParam* options);

// The number, or the end of the range that it is beyond; other values as they are.
CKWVariant withinRange(const CKWVariant& value, const ValueRange& range);

// A line for each value of a tree that is beyond its range: what stands there, what is allowed, what counts.
QStringList valuesOutOfRange(const Section& root, const ValueRanges& ranges);

} // namespace standin
