// Values with a type, as system variables and console prompts pass them.
#include "sdk/rx/res_buf.h"

ODRX_DEFINE_CLASS(OdResBuf, OdRxObject)

namespace {

struct CodeRange {
    int first, last;
    OdDxfCode::Type type;
};

// The classes of group codes, in ascending order.
const CodeRange codeRanges[] = {
    {0, 4, OdDxfCode::String},          {5, 5, OdDxfCode::Integer64},
    {6, 9, OdDxfCode::String},          {10, 59, OdDxfCode::Double},
    {60, 79, OdDxfCode::Integer16},     {90, 99, OdDxfCode::Integer32},
    {100, 102, OdDxfCode::String},      {105, 105, OdDxfCode::Integer64},
    {110, 149, OdDxfCode::Double},      {160, 169, OdDxfCode::Integer64},
    {170, 179, OdDxfCode::Integer16},   {210, 239, OdDxfCode::Double},
    {270, 279, OdDxfCode::Integer16},   {280, 289, OdDxfCode::Integer8},
    {290, 299, OdDxfCode::Bool},        {300, 309, OdDxfCode::String},
    {370, 389, OdDxfCode::Integer16},   {400, 409, OdDxfCode::Integer16},
    {410, 419, OdDxfCode::String},      {420, 429, OdDxfCode::Integer32},
    {430, 439, OdDxfCode::String},      {440, 459, OdDxfCode::Integer32},
    {460, 469, OdDxfCode::Double},      {470, 479, OdDxfCode::String},
    {999, 1009, OdDxfCode::String},     {1010, 1059, OdDxfCode::Double},
    {1060, 1070, OdDxfCode::Integer16}, {1071, 1071, OdDxfCode::Integer32},
    {5001, 5001, OdDxfCode::Double},    {5003, 5003, OdDxfCode::Integer16},
    {5005, 5005, OdDxfCode::String},    {5010, 5010, OdDxfCode::Integer32},
};

} // namespace

OdDxfCode::Type OdDxfCode::_getType(int groupCode) {
    for (const CodeRange& range : codeRanges)
        if (groupCode >= range.first && groupCode <= range.last)
            return range.type;
    return Unknown;
}

OdResBufPtr OdResBuf::newRb(int restype) {
    OdResBufPtr result(new OdResBuf);
    result->groupCode = restype;
    return result;
}

OdString OdResBuf::getString() const {
    const OdString* text = std::get_if<OdString>(&value);
    return text ? *text : OdString();
}

OdResBufPtr OdResBuf::clone() const {
    OdResBufPtr result(new OdResBuf);
    result->groupCode = groupCode;
    result->value = value;
    return result;
}

double OdResBuf::number() const {
    if (const double* real = std::get_if<double>(&value))
        return *real;
    return static_cast<double>(integer());
}

std::int64_t OdResBuf::integer() const {
    if (const std::int64_t* whole = std::get_if<std::int64_t>(&value))
        return *whole;
    const double* real = std::get_if<double>(&value);
    return real ? static_cast<std::int64_t>(*real) : 0;
}
