// Values of system variables: their types, limits and texts.
#include "standin/sysvars/sysvar_table.h"

#include "host/text.h"

#include <QLocale>
#include <cmath>
#include <limits>

namespace standin {

namespace {

struct Width {
    double least, greatest;
};

Width widthOf(VarType type) {
    switch (type) {
    case VarType::Bool:
        return {0, 1};
    case VarType::Int8:
        return {-128, 127};
    case VarType::Int16:
        return {-32768, 32767};
    case VarType::Int32:
        return {-2147483648.0, 2147483647.0};
    default:
        return {-std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    }
}

bool isTextBuffer(const OdResBuf& value) {
    const auto kind = OdDxfCode::_getType(value.restype());
    return kind == OdDxfCode::String || kind == OdDxfCode::Name;
}

} // namespace

const SysVarDef* SysVarTable::find(const QString& name) const {
    const auto found = byName.find(name.toUpper());
    return found == byName.end() ? nullptr : &definitions[found->second];
}

void SysVarTable::add(SysVarDef definition) {
    byName[definition.name] = definitions.size();
    definitions.push_back(std::move(definition));
}

int resBufType(VarType type) {
    switch (type) {
    case VarType::Bool:
        return OdResBuf::kDxfBool;
    case VarType::Int8:
        return OdResBuf::kDxfInt8;
    case VarType::Int16:
        return OdResBuf::kRtInt16;
    case VarType::Int32:
        return OdResBuf::kRtInt32;
    case VarType::Real:
        return OdResBuf::kRtDouble;
    default:
        return OdResBuf::kRtString;
    }
}

bool isNumber(VarType type) { return type != VarType::Text; }

bool accepts(const SysVarDef& definition, const OdResBuf& value) {
    if (isNumber(definition.type) == isTextBuffer(value))
        return false;
    if (!isNumber(definition.type))
        return true;
    const double number = value.getDouble();
    const Width width = widthOf(definition.type);
    return std::isfinite(number) &&
           number >= std::max(width.least, definition.minimum.value_or(width.least)) &&
           number <= std::min(width.greatest, definition.maximum.value_or(width.greatest));
}

OdResBufPtr converted(const SysVarDef& definition, const OdResBuf& source) {
    OdResBufPtr result = OdResBuf::newRb(resBufType(definition.type));
    if (definition.type == VarType::Text)
        result->setString(source.getString());
    else if (definition.type == VarType::Real)
        result->setDouble(source.getDouble());
    else
        result->setInt32(source.getInt32());
    return result;
}

QString valueText(const SysVarDef& definition, const OdResBuf& value) {
    if (definition.type == VarType::Text)
        return hostqt::qString(value.getString());
    if (definition.type == VarType::Real)
        return QString::number(value.getDouble(), 'g', QLocale::FloatingPointShortest);
    return QString::number(value.getInt32());
}

OdResBufPtr valueFromText(const SysVarDef& definition, const QString& text) {
    OdResBufPtr result = OdResBuf::newRb(resBufType(definition.type));
    bool read = true;
    if (definition.type == VarType::Text)
        result->setString(hostqt::odString(text));
    else if (definition.type == VarType::Real)
        result->setDouble(text.trimmed().toDouble(&read));
    else
        result->setInt32(text.trimmed().toInt(&read));
    return read ? result : OdResBufPtr();
}

} // namespace standin
