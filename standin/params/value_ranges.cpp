// Collects the ranges from the rows of the options, and holds values to them.
#include "standin/params/value_ranges.h"

#include "host/typed_reads.h"
#include "standin/params/mem_param.h"

#include <QCoreApplication>
#include <algorithm>
#include <optional>

namespace standin {

namespace {

std::string textOf(IParam* node, const char* name) {
    CXString text;
    readValue(node, name, &text);
    return text.isEmpty() ? std::string() : std::string(text.c_str());
}

std::string ownOrParents(IParam* node, IParam* parent, const char* name) {
    const std::string own = textOf(node, name);
    return own.empty() ? textOf(parent, name) : own;
}

bool isVariable(IParam* node) {
    int variable = 0;
    return readValue(node, "sysvar", &variable) != 0 && variable != 0;
}

std::string pathOf(std::string section, const std::string& key) {
    std::replace(section.begin(), section.end(), '\\', '/');
    return section + '/' + key;
}

std::optional<ValueRange> limitsOf(IParam* node) {
    tagSIZE whole{};
    if (readValue(node, "Limits", &whole))
        return ValueRange{double(std::min(whole.cx, whole.cy)), double(std::max(whole.cx, whole.cy))};
    tagRSIZE real{};
    if (readValue(node, "Limits", &real))
        return ValueRange{std::min(real.cx, real.cy), std::max(real.cx, real.cy)};
    return std::nullopt;
}

void collect(IParam* node, IParam* parent, ValueRanges& ranges) {
    const auto limits = limitsOf(node);
    const std::string key = ownOrParents(node, parent, "Key");
    if (limits && !key.empty() && !isVariable(node) && ownOrParents(node, parent, "IFace") == "IProfile")
        ranges[pathOf(ownOrParents(node, parent, "Section"), key)] = *limits;
    for (const std::string& name : childNames(node))
        collect(openChild(node, name.c_str()).get(), node, ranges);
}

std::optional<double> numberOf(const CKWVariant& value) {
    if (isIntegerType(value.vt))
        return double(value.integer);
    return value.vt == kVtDouble ? std::optional<double>(value.real) : std::nullopt;
}

QString text(double number) { return QString::number(number, 'g', 15); }

QString lineOf(const std::string& path, double number, double counted, const ValueRange& range) {
    return QCoreApplication::translate("ValueRanges", "%1 is %2, which is not within %3 and %4; %5 counts.")
        .arg(QString::fromStdString(path), text(number), text(range.lowest), text(range.highest),
             text(counted));
}

} // namespace

ValueRanges rangesOfProfile(IParam* options) {
    ValueRanges ranges;
    if (options)
        collect(options, nullptr, ranges);
    return ranges;
}

CKWVariant withinRange(const CKWVariant& value, const ValueRange& range) {
    const auto number = numberOf(value);
    if (!number || (*number >= range.lowest && *number <= range.highest))
        return value;
    CKWVariant nearest = value;
    const double counted = *number > range.highest ? range.highest : range.lowest;
    if (value.vt == kVtDouble)
        nearest.real = counted;
    else
        nearest.integer = static_cast<std::int64_t>(counted);
    return nearest;
}

QStringList valuesOutOfRange(const Section& root, const ValueRanges& ranges) {
    QStringList lines;
    for (const auto& [path, range] : ranges) {
        const std::size_t split = path.rfind('/');
        const Ref<MemParam> section = root.find(path.substr(0, split));
        const CKWVariant* const value =
            section ? section->section().values().find(path.substr(split + 1)) : nullptr;
        const auto number = value ? numberOf(*value) : std::nullopt;
        const auto counted = value ? numberOf(withinRange(*value, range)) : std::nullopt;
        if (number != counted)
            lines << lineOf(path, *number, *counted, range);
    }
    return lines;
}

} // namespace standin
