// Header values with the order and the tags of their file.
#include "sdk/db/header.h"

#include "sdk/dxf/scanner.h"

#include <algorithm>

namespace {
constexpr int kNameCode = 9;
constexpr std::string_view kCustomName = "$CUSTOMPROPERTYTAG";
constexpr std::string_view kCustomValue = "$CUSTOMPROPERTY";
} // namespace

void OdDbHeader::parse(std::string_view bytes, std::shared_ptr<const std::string> source,
                       bool carriageReturns) {
    withCarriageReturns = carriageReturns;
    DxfScanner scanner(bytes);
    DxfTag tag;
    const char* start = nullptr;
    std::string name;
    const auto finish = [&](const char* end) {
        const std::string_view part(start ? start : bytes.data(),
                                    static_cast<std::size_t>(end - (start ? start : bytes.data())));
        if (start)
            variables.push_back({name, DxfTagList::parse(part, source, carriageReturns)});
        else
            preamble = part;
    };
    while (scanner.next(tag)) {
        if (tag.code != kNameCode)
            continue;
        finish(tag.raw);
        start = tag.raw;
        name = dxfTrimmed(tag.value());
    }
    finish(scanner.position());
}

std::string OdDbHeader::bytes() const {
    std::string result = preamble;
    for (const Variable& variable : variables)
        result += variable.tags.bytes();
    return result;
}

std::vector<OdDbHeader::Variable>::iterator OdDbHeader::locate(std::string_view name) {
    return std::find_if(variables.begin(), variables.end(),
                        [name](const Variable& variable) { return variable.name == name; });
}

const OdDbHeader::Variable* OdDbHeader::find(std::string_view name) const {
    const auto found = const_cast<OdDbHeader*>(this)->locate(name);
    return found == variables.end() ? nullptr : &*found;
}

std::string_view OdDbHeader::value(std::string_view name, std::string_view otherwise) const {
    const Variable* variable = find(name);
    return variable && variable->tags.size() > 1 ? variable->tags[1].value() : otherwise;
}

int OdDbHeader::code(std::string_view name) const {
    const Variable* variable = find(name);
    return variable && variable->tags.size() > 1 ? variable->tags[1].code : 0;
}

double OdDbHeader::real(std::string_view name, double otherwise) const {
    const std::string_view text = value(name);
    return text.empty() ? otherwise : dxfReal(text);
}

std::int64_t OdDbHeader::integer(std::string_view name, std::int64_t otherwise) const {
    const std::string_view text = value(name);
    return text.empty() ? otherwise : dxfInteger(text);
}

OdGePoint3d OdDbHeader::point(std::string_view name, const OdGePoint3d& otherwise) const {
    const Variable* variable = find(name);
    return variable ? variable->tags.point(variable->tags.whole(), 10) : otherwise;
}

OdDbHeader::Variable& OdDbHeader::add(std::string_view name) {
    Variable variable;
    variable.name = name;
    variable.tags.restyle(withCarriageReturns);
    variable.tags.append(kNameCode, name);
    variables.push_back(std::move(variable));
    return variables.back();
}

void OdDbHeader::set(std::string_view name, int code, std::string_view value) {
    changed = true;
    const auto found = locate(name);
    Variable& variable = found == variables.end() ? add(name) : *found;
    if (variable.tags.size() > 1)
        variable.tags.replace(1, value);
    else
        variable.tags.append(code, value);
}

void OdDbHeader::setPoint(std::string_view name, const OdGePoint3d& value) {
    changed = true;
    const auto found = locate(name);
    Variable& variable = found == variables.end() ? add(name) : *found;
    if (variable.tags.size() > 1)
        variable.tags.erase(1, variable.tags.size() - 1);
    variable.tags.append(10, dxfText(value.x));
    variable.tags.append(20, dxfText(value.y));
    variable.tags.append(30, dxfText(value.z));
}

void OdDbHeader::put(std::string_view name, DxfTagList tags) {
    changed = true;
    const auto found = locate(name);
    Variable& variable = found == variables.end() ? add(name) : *found;
    tags.restyle(withCarriageReturns);
    variable.tags = std::move(tags);
}

// Variables are never taken out of a header but by this, so the others stand in the same order then and now.
void OdDbHeader::restore(const Variables& former, bool (*isMeant)(std::string_view name)) {
    changed = true;
    Variables others, result;
    std::copy_if(variables.begin(), variables.end(), std::back_inserter(others),
                 [isMeant](const Variable& variable) { return !isMeant(variable.name); });
    auto other = others.begin();
    for (const Variable& variable : former) {
        if (isMeant(variable.name))
            result.push_back(variable);
        else if (other != others.end())
            result.push_back(*other++);
    }
    result.insert(result.end(), other, others.end());
    variables = std::move(result);
}

std::vector<std::pair<std::string, std::string>> OdDbHeader::customProperties() const {
    std::vector<std::pair<std::string, std::string>> result;
    result.reserve(variables.size() / 2);
    for (const Variable& variable : variables) {
        const bool isName = variable.name == kCustomName;
        if (!isName && variable.name != kCustomValue)
            continue;
        const std::string_view value =
            variable.tags.size() > 1 ? variable.tags[1].value() : std::string_view();
        if (isName)
            result.emplace_back(value, std::string());
        else if (!result.empty())
            result.back().second = value;
    }
    return result;
}

void OdDbHeader::setCustomProperties(const std::vector<std::pair<std::string, std::string>>& properties) {
    if (customProperties() == properties)
        return;
    changed = true;
    const auto isCustom = [](const Variable& v) { return v.name == kCustomName || v.name == kCustomValue; };
    auto place = std::find_if(variables.begin(), variables.end(), isCustom) - variables.begin();
    variables.erase(std::remove_if(variables.begin(), variables.end(), isCustom), variables.end());
    for (const auto& [name, value] : properties) {
        for (const auto& [variableName, text] :
             {std::pair(kCustomName, &name), std::pair(kCustomValue, &value)}) {
            add(variableName).tags.append(1, *text);
            std::rotate(variables.begin() + place, variables.end() - 1, variables.end());
            ++place;
        }
    }
}
