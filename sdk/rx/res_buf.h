// One typed value as it travels between system variables, headers and callers. The type is a group code
// (`restype`); OdDxfCode tells the class of a code.
#pragma once

#include "sdk/rx/rx_object.h"

#include <cstdint>
#include <variant>

class OdDxfCode {
public:
    enum Type {
        Unknown = 0,
        Name = 1,
        String = 2,
        Bool = 3,
        Integer8 = 4,
        Integer16 = 5,
        Integer32 = 6,
        Integer64 = 7,
        Double = 8
    };
    static Type _getType(int groupCode);
};

class OdResBuf;
using OdResBufPtr = OdSmartPtr<OdResBuf>;

class OdResBuf : public OdRxObject {
    ODRX_DECLARE_CLASS(OdResBuf)
    enum ValueType {
        kRtDouble = 5001,
        kRtInt16 = 5003,
        kRtString = 5005,
        kRtInt32 = 5010,
        kDxfBool = 290,
        kDxfInt8 = 280
    };
    // A buffer of the given type with an empty value.
    static OdResBufPtr newRb(int restype = 0);

    int restype() const { return groupCode; }
    void setRestype(int code) { groupCode = code; }

    // Numbers convert into one another; text and numbers do not, a wrong kind reads as 0, false or "".
    bool getBool() const { return number() != 0; }
    std::int8_t getInt8() const { return static_cast<std::int8_t>(integer()); }
    std::int16_t getInt16() const { return static_cast<std::int16_t>(integer()); }
    std::int32_t getInt32() const { return static_cast<std::int32_t>(integer()); }
    double getDouble() const { return number(); }
    OdString getString() const;

    void setBool(bool v) { value = std::int64_t{v}; }
    void setInt8(std::int8_t v) { value = std::int64_t{v}; }
    void setInt16(std::int16_t v) { value = std::int64_t{v}; }
    void setInt32(std::int32_t v) { value = std::int64_t{v}; }
    void setDouble(double v) { value = v; }
    void setString(const OdString& v) { value = v; }

    OdResBufPtr clone() const;

private:
    double number() const;
    std::int64_t integer() const;
    int groupCode = 0;
    std::variant<std::monostate, std::int64_t, double, OdString> value;
};
