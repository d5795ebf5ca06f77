#include "standin/display/hatch_lines.h"

#include <QPointF>
#include <algorithm>
#include <cmath>
#include <utility>

namespace standin {

namespace {

const double farthestRow = 1e9; // beyond it rows can't be told apart any more

// One family of lines. Rows are counted from the base; places in a row are measured along it, from the foot
// of the base.
class Family {
public:
    Family(const OdDbHatch::PatternLines& given, std::size_t mostLines)
        : base(given.base.x, given.base.y), along(std::cos(given.angle), std::sin(given.angle)),
          across(-along.y(), along.x()), dashes(given.dashes), most(mostLines) {
        const QPointF offset(given.offset.x, given.offset.y);
        step = QPointF::dotProduct(offset, across);
        shift = QPointF::dotProduct(offset, along);
        for (const double dash : dashes)
            period += std::fabs(dash);
        if (!(period > 0) || !std::isfinite(period))
            dashes.clear();
    }
    double distance() const { return std::fabs(step); }
    // False when there is no end of lines.
    bool addTo(std::vector<QLineF>& lines, const std::vector<OdDbHatch::Loop>& loops);

private:
    using Crossing = std::pair<double, double>; // row, place in it

    Crossing placeOf(const OdGePoint3d& point) const {
        const QPointF off = QPointF(point.x, point.y) - base;
        return {QPointF::dotProduct(off, across) / step, QPointF::dotProduct(off, along)};
    }
    bool cross(const Crossing& from, const Crossing& to);
    bool addRun(std::vector<QLineF>& lines, double row, double from, double to) const;
    bool addDashes(std::vector<QLineF>& lines, double row, double from, double to) const;
    QPointF pointAt(double row, double place) const { return base + across * (row * step) + along * place; }

    QPointF base, along, across;
    std::vector<double> dashes;
    std::size_t most;
    double step = 0, shift = 0, period = 0;
    std::vector<Crossing> crossings;
};

// The rows that a side of a border crosses. An end that lies on a row belongs below it, so that each border
// crosses a row an even number of times.
bool Family::cross(const Crossing& from, const Crossing& to) {
    const auto [low, high] = std::minmax(from.first, to.first);
    if (!(low > -farthestRow) || !(high < farthestRow) ||
        high - low > static_cast<double>(2 * most - std::min(2 * most, crossings.size())))
        return false;
    for (double row = std::ceil(low); row < high; ++row)
        crossings.emplace_back(row, from.second + (to.second - from.second) * (row - from.first) /
                                                      (to.first - from.first));
    return true;
}

bool Family::addTo(std::vector<QLineF>& lines, const std::vector<OdDbHatch::Loop>& loops) {
    if (!std::isfinite(step) || step == 0)
        return false;
    for (const OdDbHatch::Loop& loop : loops) {
        Crossing last = placeOf(loop.back());
        for (const OdGePoint3d& point : loop) {
            const Crossing next = placeOf(point);
            if (!cross(last, next))
                return false;
            last = next;
        }
    }
    std::sort(crossings.begin(), crossings.end());
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
        if (!addRun(lines, crossings[i].first, crossings[i].second, crossings[i + 1].second))
            return false;
    return true;
}

bool Family::addRun(std::vector<QLineF>& lines, double row, double from, double to) const {
    if (!dashes.empty())
        return addDashes(lines, row, from, to);
    if (lines.size() >= most)
        return false;
    if (to > from)
        lines.emplace_back(pointAt(row, from), pointAt(row, to));
    return true;
}

bool Family::addDashes(std::vector<QLineF>& lines, double row, double from, double to) const {
    const double length = to - from;
    const double wanted = length / period * static_cast<double>(dashes.size());
    if (!(wanted < static_cast<double>(most - std::min(most, lines.size()))))
        return false;
    double behind = std::fmod(from - row * shift, period); // of the pattern when the run begins
    if (behind < 0)
        behind += period;
    std::size_t dash = 0;
    while (dash + 1 < dashes.size() && behind > 0 && behind >= std::fabs(dashes[dash]))
        behind -= std::fabs(dashes[dash++]);
    for (double at = 0; at < length; dash = (dash + 1) % dashes.size(), behind = 0) {
        const double next = std::min(length, at + std::max(0.0, std::fabs(dashes[dash]) - behind));
        if (dashes[dash] >= 0)
            lines.emplace_back(pointAt(row, from + at), pointAt(row, from + next));
        at = next;
    }
    return true;
}

} // namespace

std::optional<HatchLines> hatchLines(const std::vector<OdDbHatch::Loop>& loops,
                                     const std::vector<OdDbHatch::PatternLines>& pattern, std::size_t most) {
    if (pattern.empty())
        return std::nullopt;
    HatchLines result;
    result.finest = HUGE_VAL;
    for (const OdDbHatch::PatternLines& lines : pattern) {
        Family family(lines, most);
        if (!family.addTo(result.lines, loops))
            return std::nullopt;
        result.finest = std::min(result.finest, family.distance());
    }
    return result;
}

} // namespace standin
