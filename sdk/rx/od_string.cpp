// Wide texts and their conversions from and to bytes.
#include "sdk/rx/od_string.h"

#include "sdk/rx/wide_text.h"

#include <QString>
#include <clocale>
#include <cwchar>
#include <cwctype>
#include <vector>

namespace {

std::wstring decode(const char* text, OdCodePageId codePage) {
    if (!text)
        return {};
    return (codePage == CP_UTF8 ? QString::fromUtf8(text) : QString::fromLocal8Bit(text)).toStdWString();
}

// swprintf takes wide text as %ls; the SDK's own formats write %s for it.
std::wstring widePattern(const wchar_t* pattern) {
    std::wstring result;
    for (const wchar_t* p = pattern; *p; ++p) {
        result += *p;
        if (*p != L'%')
            continue;
        ++p;
        while (*p && std::wcschr(L"-+ #0123456789.*", *p))
            result += *p++;
        if (*p == L's')
            result += L'l';
        if (!*p)
            return result + L'%'; // a sign at the end stands for itself
        result += *p;
    }
    return result;
}

// While it lives, this thread writes a decimal point whatever the process's locale says.
class PointAsDecimal {
public:
    PointAsDecimal()
        : numeric(newlocale(LC_NUMERIC_MASK, "C", duplocale(uselocale(nullptr)))),
          former(uselocale(numeric)) {}
    ~PointAsDecimal() {
        uselocale(former);
        freelocale(numeric);
    }
    PointAsDecimal(const PointAsDecimal&) = delete;
    PointAsDecimal& operator=(const PointAsDecimal&) = delete;

private:
    locale_t numeric;
    locale_t former;
};

} // namespace

OdString::OdString(const char* text, OdCodePageId codePage) : value(decode(text, codePage)) {}

std::string OdString::toLocal8Bit() const { return odQString(value).toLocal8Bit().toStdString(); }

std::string OdString::toUtf8() const { return odQString(value).toStdString(); }

int OdString::iCompare(const OdString& other) const {
    return QString::compare(odQString(value), odQString(other.value), Qt::CaseInsensitive);
}

int OdString::find(wchar_t character, int start) const {
    const auto at = value.find(character, static_cast<std::size_t>(start));
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

OdString& OdString::trimLeft() {
    std::size_t count = 0;
    while (count < value.size() && QChar::isSpace(static_cast<uint>(value[count])))
        ++count;
    value.erase(0, count);
    return *this;
}

OdString& OdString::trimRight() {
    while (!value.empty() && QChar::isSpace(static_cast<uint>(value.back())))
        value.pop_back();
    return *this;
}

OdString OdString::makeUpper() const { return odQString(value).toUpper().toStdWString(); }

OdString& OdString::format(const wchar_t* pattern, ...) {
    std::va_list arguments;
    va_start(arguments, pattern);
    formatV(pattern, arguments);
    va_end(arguments);
    return *this;
}

OdString& OdString::formatV(const wchar_t* pattern, std::va_list arguments) {
    const PointAsDecimal pointAsDecimal;
    const std::wstring wide = widePattern(pattern);
    for (std::size_t room = wide.size() + 256;; room *= 2) {
        std::vector<wchar_t> buffer(room);
        std::va_list again;
        va_copy(again, arguments);
        const int written = std::vswprintf(buffer.data(), buffer.size(), wide.c_str(), again);
        va_end(again);
        if (written >= 0) {
            value.assign(buffer.data(), static_cast<std::size_t>(written));
            return *this;
        }
        if (room > (std::size_t{1} << 22)) {
            value.clear();
            return *this;
        }
    }
}
