// Reading and writing of single values.
#include "standin/params/yaml_scalar.h"

#include "host/text.h"

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace standin {

namespace {

const char wideTag[] = "!wide", bytesTag[] = "!bytes";
const char sizeTag[] = "!size", rsizeTag[] = "!rsize", rpointTag[] = "!rpoint";

template <class T, class... Base> std::optional<T> fromChars(std::string_view text, Base... base) {
    T value{};
    const auto end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value, base...);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

std::optional<std::int64_t> integerFrom(std::string_view text) {
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X'))
        return text[2] == '-' ? std::nullopt : fromChars<std::int64_t>(text.substr(2), 16);
    const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return fromChars<std::int64_t>(plus ? text.substr(1) : text, 10);
}

std::optional<double> realFrom(std::string_view text) {
    if (text == ".nan")
        return std::numeric_limits<double>::quiet_NaN();
    if (text == ".inf" || text == "-.inf")
        return std::copysign(std::numeric_limits<double>::infinity(), text.front() == '-' ? -1.0 : 1.0);
    if (text.empty() || text.find('.') == std::string_view::npos ||
        text.find_first_not_of("+-.0123456789eE") != std::string_view::npos)
        return std::nullopt;
    return fromChars<double>(text.front() == '+' ? text.substr(1) : text);
}

// A number inside a list may be written without its decimal point.
std::optional<double> numberFrom(const std::string& text) {
    if (const auto integer = integerFrom(text))
        return static_cast<double>(*integer);
    return realFrom(text);
}

CKWVariant integerVariant(std::int64_t value) {
    CKWVariant variant;
    if (value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max())
        variant = static_cast<int>(value);
    else if (value >= 0 && value <= std::numeric_limits<unsigned int>::max())
        variant = static_cast<unsigned int>(value);
    else {
        variant.vt = kVtInt64;
        variant.integer = value;
    }
    return variant;
}

// Qt leaves out a byte order mark at the beginning, which belongs to a name or a text as any other character.
QString wholeTextOf(const std::string& utf8) { return QString::fromStdString(' ' + utf8).mid(1); }
QString wholeTextOfLocal(const char* bytes) {
    return QString::fromLocal8Bit((' ' + std::string(bytes)).c_str()).mid(1);
}

template <class T> CKWVariant made(const T& value) {
    CKWVariant variant;
    variant = value;
    return variant;
}

CKWVariant textVariant(const std::string& utf8) { return made(localFromUtf8(utf8).c_str()); }

std::string numberText(double value) {
    if (std::isnan(value))
        return ".nan";
    if (std::isinf(value))
        return value < 0 ? "-.inf" : ".inf";
    char buffer[40];
    std::string text(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
    if (text.find('.') == std::string::npos)
        text.insert(std::min(text.find('e'), text.size()), ".0");
    return text;
}

std::string escaped(unsigned char character) {
    char buffer[8];
    std::snprintf(buffer, sizeof buffer, "\\x%02X", character);
    return buffer;
}

std::string quoted(const std::string& utf8) {
    std::string text = "\"";
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            text += {'\\', c};
        else if (c == '\n')
            text += "\\n";
        else if (byte < 0x20 || byte == 0x7F)
            text += escaped(byte);
        else
            text += c;
    }
    return text + '"';
}

// Bytes that are no text of the local code page keep their values in hexadecimal digits.
std::string localTextToYaml(const char* bytes) {
    const QString text = wholeTextOfLocal(bytes);
    if (text.toLocal8Bit() == bytes)
        return quoted(text.toStdString());
    return std::string(bytesTag) + " \"" + QByteArray(bytes).toHex().toStdString() + '"';
}

std::string pairToYaml(const char* tag, const std::string& first, const std::string& second) {
    return std::string(tag) + " [" + first + ", " + second + "]";
}

} // namespace

std::string localFromUtf8(const std::string& utf8) { return wholeTextOf(utf8).toLocal8Bit().toStdString(); }

std::optional<CKWVariant> scalarFromYaml(const std::string& tag, const std::string& text) {
    if (tag == wideTag)
        return made(wholeTextOf(text).toStdWString().c_str());
    if (tag == bytesTag)
        return made(QByteArray::fromHex(QByteArray::fromStdString(text)).constData());
    if (tag == "!")
        return textVariant(text);
    if (tag != "?" && !tag.empty())
        return std::nullopt;
    if (const auto integer = integerFrom(text))
        return integerVariant(*integer);
    if (const auto real = realFrom(text))
        return made(*real);
    return textVariant(text);
}

bool isListTag(const std::string& tag) { return tag == sizeTag || tag == rsizeTag || tag == rpointTag; }

std::optional<CKWVariant> listFromYaml(const std::string& tag, const std::vector<std::string>& items) {
    if (items.size() != 2)
        return std::nullopt;
    if (tag == sizeTag) {
        const auto first = integerFrom(items[0]), second = integerFrom(items[1]);
        if (!first || !second || *first != std::int32_t(*first) || *second != std::int32_t(*second))
            return std::nullopt;
        return made(tagSIZE{std::int32_t(*first), std::int32_t(*second)});
    }
    const auto first = numberFrom(items[0]), second = numberFrom(items[1]);
    if (!first || !second)
        return std::nullopt;
    return tag == rsizeTag ? made(tagRSIZE{*first, *second}) : made(tagRPOINT{*first, *second});
}

std::optional<std::string> valueToYaml(const CKWVariant& value) {
    if (isIntegerType(value.vt))
        return std::to_string(value.integer);
    switch (value.vt) {
    case kVtDouble:
        return numberText(value.real);
    case kVtString:
        return localTextToYaml(value.text);
    case kVtWideString:
        return std::string(wideTag) + ' ' + quoted(hostqt::qString(value.wideText).toStdString());
    case kVtSize:
        return pairToYaml(sizeTag, std::to_string(value.size.cx), std::to_string(value.size.cy));
    case kVtRSize:
        return pairToYaml(rsizeTag, numberText(value.rsize.cx), numberText(value.rsize.cy));
    case kVtRPoint:
        return pairToYaml(rpointTag, numberText(value.rpoint.x), numberText(value.rpoint.y));
    default:
        return std::nullopt;
    }
}

std::string nameToYaml(const std::string& name) {
    const auto isWordCharacter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    };
    const bool plain = !name.empty() && !(name[0] >= '0' && name[0] <= '9') &&
                       std::all_of(name.begin(), name.end(), isWordCharacter) && name.size() < 100;
    const bool isNull = name == "null" || name == "Null" || name == "NULL";
    return plain && !isNull ? name : quoted(wholeTextOfLocal(name.c_str()).toStdString());
}

} // namespace standin
