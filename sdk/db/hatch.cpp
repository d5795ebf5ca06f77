// Hatches as entities; their borders are read in a file of their own.
#include "sdk/db/hatch.h"

#include "sdk/db/hatch_loops.h"

#include <cmath>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbHatch, OdDbEntity)

namespace {
constexpr std::string_view kHatch = "AcDbHatch";
constexpr int kStyle = 75;
constexpr int kPatternLineCount = 78;
constexpr int kAngle = 53; // the first tag of each family of pattern lines
constexpr double kDegree = M_PI / 180;

void readPatternTag(OdDbHatch::PatternLines& lines, int code, double number) {
    switch (code) {
    case 43:
        lines.base.x = number;
        break;
    case 44:
        lines.base.y = number;
        break;
    case 45:
        lines.offset.x = number;
        break;
    case 46:
        lines.offset.y = number;
        break;
    case 49:
        lines.dashes.push_back(number);
        break;
    default:
        break;
    }
}
} // namespace

OdDbHatch::Style OdDbHatch::style() const {
    const std::int64_t number = content.integer(kHatch, kStyle);
    return number == kOutermost || number == kIgnoreInner ? static_cast<Style>(number) : kNormal;
}

bool OdDbHatch::isSolidFill() const { return content.integer(kHatch, 70) == 1; }

OdString OdDbHatch::patternName() const { return textValue(kHatch, 2); }

std::vector<OdDbHatch::Loop> OdDbHatch::loops() const {
    return odDbHatchLoops(content, content.subclass(kHatch));
}

std::vector<OdDbHatch::PatternLines> OdDbHatch::patternLines() const {
    std::vector<PatternLines> list;
    const DxfTagList::Range range = content.subclass(kHatch);
    for (std::size_t i = content.find(kPatternLineCount, range); i < range.end; ++i) {
        const double number = dxfReal(content[i].value());
        if (content[i].code == kAngle)
            list.push_back({number * kDegree, {}, {}, {}});
        else if (!list.empty())
            readPatternTag(list.back(), content[i].code, number);
    }
    return list;
}

// The first point of a hatch tells its height over the plane and nothing else.
OdGeMatrix3d OdDbHatch::loopToWorld() const {
    return planeToWorld() * OdGeMatrix3d::translation({0, 0, content.real(kHatch, 30)});
}

void OdDbHatch::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    const OdGeMatrix3d matrix = toWorld * loopToWorld();
    for (const Loop& loop : loops())
        for (const OdGePoint3d& point : loop)
            extents.addPoint(matrix * point);
}
