#include "sdk/db/dimension_values.h"

#include "sdk/db/database.h"
#include "sdk/db/symbol_table.h"

#include <optional>

namespace {

constexpr std::string_view kDimStyle = "AcDbDimStyleTableRecord";
constexpr std::string_view kOverrides = "DSTYLE";
constexpr int kStyleName = 3;
constexpr int kExtendedText = 1000;
constexpr int kExtendedInteger = 1070;

// Pairs in braces: the code of a value as a number, then the value.
std::optional<double> overrideOf(const DxfTagList& tags, int code) {
    std::size_t i = 0;
    while (i < tags.size() && (tags[i].code != kExtendedText || dxfTrimmed(tags[i].value()) != kOverrides))
        ++i;
    for (i += 2; i + 1 < tags.size() && tags[i].code == kExtendedInteger; i += 2)
        if (dxfInteger(tags[i].value()) == code)
            return dxfReal(tags[i + 1].value());
    return std::nullopt;
}

} // namespace

double odDbDimensionValue(const OdDbEntity& entity, std::string_view marker, int code, double otherwise) {
    if (const auto own = overrideOf(entity.tags(), code))
        return *own;
    const auto styles = odrxQuery<OdDbSymbolTable>(
        entity.database() ? entity.database()->getDimStyleTableId().openObject().get() : nullptr);
    if (styles.isNull())
        return otherwise;
    const OdDbObjectPtr style = styles->getAt(entity.textValue(marker, kStyleName)).openObject();
    return style.isNull() ? otherwise : style->tags().real(kDimStyle, code, otherwise);
}
