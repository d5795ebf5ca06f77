#include "standin/display/drawing_variables.h"

namespace standin {

namespace {

OdResBufPtr variable(const OdDbDatabase& drawing, const wchar_t* name) {
    try {
        return drawing.getSysVar(name);
    } catch (const OdError&) {
        return {};
    }
}

int integerOf(const OdDbDatabase& drawing, const wchar_t* name) {
    const OdResBufPtr value = variable(drawing, name);
    return value.isNull() ? 0 : value->getInt32();
}

double realOf(const OdDbDatabase& drawing, const wchar_t* name) {
    const OdResBufPtr value = variable(drawing, name);
    return value.isNull() ? 0 : value->getDouble();
}

} // namespace

DrawingVariables DrawingVariables::of(const OdDbDatabase& drawing) {
    const double scale = realOf(drawing, L"LTSCALE");
    return {integerOf(drawing, L"LWDISPLAY") != 0, scale > 0 ? scale : 1, integerOf(drawing, L"PDMODE"),
            realOf(drawing, L"PDSIZE")};
}

} // namespace standin
