// Leaders as entities; the size of the arrow head stands in the dimension style, or behind it as an override.
#include "sdk/db/leader.h"

#include "sdk/db/database.h"
#include "sdk/db/symbol_table.h"

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbLeader, OdDbEntity)

namespace {
constexpr std::string_view kLeader = "AcDbLeader";
constexpr std::string_view kDimStyle = "AcDbDimStyleTableRecord";
constexpr std::string_view kOverrides = "DSTYLE";
constexpr int kStyleName = 3;
constexpr int kArrowFlag = 71;
constexpr int kVertex = 10;
constexpr int kExtendedText = 1000;
constexpr int kExtendedInteger = 1070;
constexpr int kScale = 40;
constexpr int kArrowSize = 41;
constexpr double kUsualArrowSize = 0.18;
} // namespace

std::vector<OdGePoint3d> OdDbLeader::vertices() const {
    return content.points(content.subclass(kLeader), kVertex);
}

bool OdDbLeader::hasArrowHead() const {
    return content.integer(content.subclass(kLeader), kArrowFlag, 1) != 0;
}

// Overrides are pairs in braces: the code of a value as a number, then the value.
double OdDbLeader::dimensionValue(int code, double otherwise) const {
    std::size_t i = content.subclass(kLeader).end;
    while (i < content.size() &&
           (content[i].code != kExtendedText || dxfTrimmed(content[i].value()) != kOverrides))
        ++i;
    for (i += 2; i + 1 < content.size() && content[i].code == kExtendedInteger; i += 2)
        if (dxfInteger(content[i].value()) == code)
            return dxfReal(content[i + 1].value());
    const auto styles = odrxQuery<OdDbSymbolTable>(
        database() ? database()->getDimStyleTableId().openObject().get() : nullptr);
    if (styles.isNull())
        return otherwise;
    const OdDbObjectPtr style = styles->getAt(textValue(kLeader, kStyleName)).openObject();
    return style.isNull() ? otherwise
                          : style->tags().real(style->tags().subclass(kDimStyle), code, otherwise);
}

// A scale of 0 stands for one that depends on the view; the model space shows it as 1.
double OdDbLeader::arrowSize() const {
    const double scale = dimensionValue(kScale, 1);
    return dimensionValue(kArrowSize, kUsualArrowSize) * (scale > 0 ? scale : 1);
}

void OdDbLeader::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    for (const OdGePoint3d& point : vertices())
        extents.addPoint(toWorld * point);
}
