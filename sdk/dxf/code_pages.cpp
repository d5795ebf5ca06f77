// A name is a word, or a family and a number: "ANSI_1252", "dos437", "8859_1".
#include "sdk/dxf/code_pages.h"

#include "sdk/dxf/iconv_codec.h"
#include "sdk/dxf/tag.h"

#include <QTextCodec>
#include <map>

namespace {

std::string keyOf(std::string_view name) {
    std::string key;
    for (const char c : dxfUpperCase(name))
        if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'))
            key += c;
    return key;
}

QTextCodec* named(const std::string& name) {
    QTextCodec* page = QTextCodec::codecForName(name.c_str());
    return page ? page : dxfIconvCodec(name);
}

const std::map<std::string_view, const char*>& words() {
    static const std::map<std::string_view, const char*> table{
        {"ASCII", "windows-1252"},
        {"USASCII", "windows-1252"},
        {"ANSI", "windows-1252"},
        {"UTF8", "UTF-8"},
        {"UNICODE", "UTF-8"},
        {"GB2312", "GBK"},
        {"GBK", "GBK"},
        {"GB18030", "GB18030"},
        {"BIG5", "Big5"},
        {"KSC5601", "windows-949"},
        {"KSC56011987", "windows-949"},
        {"EUCKR", "windows-949"},
        {"UHC", "windows-949"},
        {"JOHAB", "JOHAB"},
        {"SHIFTJIS", "Shift_JIS"},
        {"SJIS", "Shift_JIS"},
        {"EUCJP", "EUC-JP"},
        {"MACROMAN", "macintosh"},
        {"MACINTOSH", "macintosh"},
        {"MAC", "macintosh"},
        {"LATIN1", "ISO-8859-1"},
        {"TIS620", "windows-874"},
        {"KOI8R", "KOI8-R"},
    };
    return table;
}

// Numbers whose pages go by a word.
const std::map<std::string_view, const char*>& numbers() {
    static const std::map<std::string_view, const char*> table{
        {"874", "windows-874"}, {"932", "Shift_JIS"}, {"936", "GBK"},
        {"949", "windows-949"}, {"950", "Big5"},      {"1361", "JOHAB"},
        {"10000", "macintosh"}, {"65001", "UTF-8"},   {"54936", "GB18030"},
    };
    return table;
}

bool isOneOf(std::string_view family, std::initializer_list<std::string_view> families) {
    for (const std::string_view one : families)
        if (family == one)
            return true;
    return false;
}

// Of one of the two big families; those of the first go by four digits that start with 125.
QTextCodec* numbered(std::string_view number) {
    const auto found = numbers().find(number);
    if (found != numbers().end())
        return named(found->second);
    const bool isWindows = number.size() == 4 && number.substr(0, 3) == "125";
    QTextCodec* page = named((isWindows ? "windows-" : "IBM") + std::string(number));
    return page ? page : dxfIconvCodec("CP" + std::string(number));
}

} // namespace

QTextCodec* dxfCodePage(std::string_view name) {
    const std::string key = keyOf(name);
    const auto word = words().find(key);
    if (word != words().end())
        return named(word->second);
    for (const std::string_view prefix : {"ISO8859", "8859"})
        if (key.size() > prefix.size() && key.compare(0, prefix.size(), prefix) == 0)
            return named("ISO-8859-" + key.substr(prefix.size()));
    const std::size_t digits = key.find_first_of("0123456789");
    if (digits == std::string::npos || key.find_first_not_of("0123456789", digits) != std::string::npos)
        return nullptr;
    const std::string_view family = std::string_view(key).substr(0, digits);
    return isOneOf(family, {"", "ANSI", "WINDOWS", "CP", "MS", "DOS", "IBM", "OEM"})
               ? numbered(std::string_view(key).substr(digits))
               : nullptr;
}
