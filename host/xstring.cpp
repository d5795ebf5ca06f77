// Both string classes over one set of buffer functions; only what differs by the width of a character is
// spelled twice.
#include "host/xstring.h"

#include "sdk/rx/alloc.h"
#include "sdk/rx/od_string.h"
#include "sdk/rx/shared_empty.h"
#include "sdk/rx/wide_text.h"

#include <QLocale>
#include <QString>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <new>
#include <string>
#include <strings.h>
#include <utility>
#include <vector>

namespace {

const char dirDelim = '/';

std::size_t lengthOf(const char* text) { return std::strlen(text); }
std::size_t lengthOf(const wchar_t* text) { return std::wcslen(text); }

// The empty string shares one buffer, which is never freed.
template <class Char> Char* sharedEmpty(Char) { return static_cast<Char*>(odrxSharedEmptyText()); }

template <class Char> Char* copyOf(const Char* text, std::size_t length) {
    if (!text || length == 0)
        return sharedEmpty(Char());
    auto* copy = static_cast<Char*>(odrxAlloc((length + 1) * sizeof(Char)));
    if (!copy)
        throw std::bad_alloc();
    std::memcpy(copy, text, length * sizeof(Char));
    copy[length] = 0;
    return copy;
}

template <class Char> Char* copyOf(const Char* text) { return copyOf(text, text ? lengthOf(text) : 0); }

template <class Char> void destroy(Char* buffer) {
    if (buffer != sharedEmpty(Char()))
        odrxFree(buffer);
}

template <class Char> void replace(Char*& buffer, Char* with) {
    destroy(buffer);
    buffer = with;
}

template <class Char> Char* joined(const Char* left, const Char* right, std::size_t rightLength) {
    const std::basic_string<Char> both = std::basic_string<Char>(left).append(right, rightLength);
    return copyOf(both.data(), both.size());
}

} // namespace

CXString::CXString() : buffer(sharedEmpty(char())) {}
CXString::CXString(const char* text) : buffer(copyOf(text)) {}
CXString::CXString(const wchar_t* text)
    : buffer(copyOf(text ? odQString(text).toLocal8Bit().constData() : nullptr)) {}
CXString::CXString(const CXString& other) : buffer(copyOf(other.buffer)) {}
CXString::CXString(CXString&& other) noexcept : buffer(std::exchange(other.buffer, sharedEmpty(char()))) {}
CXString::~CXString() { destroy(buffer); }

CXString& CXString::operator=(const CXString& other) { return *this = other.buffer; }
CXString& CXString::operator=(CXString&& other) noexcept {
    std::swap(buffer, other.buffer);
    return *this;
}
CXString& CXString::operator=(const char* text) {
    replace(buffer, copyOf(text));
    return *this;
}

void CXString::AssignCopy(const char* text, unsigned length) { replace(buffer, copyOf(text, length)); }
void CXString::ConcatCopy(const char* text, unsigned length) {
    replace(buffer, joined(buffer, text, length));
}
CXString& CXString::operator+=(const CXString& other) {
    replace(buffer, joined(buffer, other.buffer, other.GetSize()));
    return *this;
}
int CXString::Compare(const char* other) const { return std::strcmp(buffer, other ? other : ""); }
int CXString::CompareI(const char* other) const { return strcasecmp(buffer, other ? other : ""); }

void CXString::Format(const char* pattern, ...) {
    std::va_list arguments;
    va_start(arguments, pattern);
    std::va_list measure;
    va_copy(measure, arguments);
    const int length = std::vsnprintf(nullptr, 0, pattern, measure);
    va_end(measure);
    std::vector<char> text(static_cast<std::size_t>(length < 0 ? 0 : length) + 1);
    std::vsnprintf(text.data(), text.size(), pattern, arguments);
    va_end(arguments);
    *this = text.data();
}

void CXString::AddDirDelim() { ConcatCopy(&dirDelim, 1); }
std::size_t CXString::GetSize() const { return lengthOf(buffer); }

CXStringW::CXStringW() : buffer(sharedEmpty(wchar_t())) {}
CXStringW::CXStringW(const char* text)
    : buffer(copyOf(text ? QString::fromLocal8Bit(text).toStdWString().c_str() : nullptr)) {}
CXStringW::CXStringW(const wchar_t* text) : buffer(copyOf(text)) {}
CXStringW::CXStringW(const CXStringW& other) : buffer(copyOf(other.buffer)) {}
CXStringW::CXStringW(CXStringW&& other) noexcept
    : buffer(std::exchange(other.buffer, sharedEmpty(wchar_t()))) {}
CXStringW::~CXStringW() { destroy(buffer); }

CXStringW& CXStringW::operator=(const CXStringW& other) { return *this = other.buffer; }
CXStringW& CXStringW::operator=(CXStringW&& other) noexcept {
    std::swap(buffer, other.buffer);
    return *this;
}
CXStringW& CXStringW::operator=(const wchar_t* text) {
    replace(buffer, copyOf(text));
    return *this;
}

void CXStringW::AssignCopy(const wchar_t* text, unsigned length) { replace(buffer, copyOf(text, length)); }
void CXStringW::ConcatCopy(const wchar_t* text, unsigned length) {
    replace(buffer, joined(buffer, text, length));
}
CXStringW& CXStringW::operator+=(const CXStringW& other) {
    replace(buffer, joined(buffer, other.buffer, other.GetLength()));
    return *this;
}
int CXStringW::CompareI(const wchar_t* other) const { return OdString(buffer).iCompare(OdString(other)); }

int CXStringW::Find(wchar_t character, int start) const {
    const std::size_t length = GetLength();
    if (start < 0 || static_cast<std::size_t>(start) >= length)
        return -1;
    const wchar_t* found = std::wcschr(buffer + start, character);
    return found && *found ? static_cast<int>(found - buffer) : -1;
}

void CXStringW::Delete(int start, int count) {
    std::wstring text(buffer);
    if (start < 0 || count <= 0 || static_cast<std::size_t>(start) >= text.size())
        return;
    text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(count));
    *this = text.c_str();
}

void CXStringW::Format(const wchar_t* pattern, ...) {
    OdString text;
    std::va_list arguments;
    va_start(arguments, pattern);
    text.formatV(pattern, arguments);
    va_end(arguments);
    *this = text.c_str();
}

void CXStringW::AddDirDelim() {
    const wchar_t delimiter = dirDelim;
    ConcatCopy(&delimiter, 1);
}
std::size_t CXStringW::GetLength() const { return lengthOf(buffer); }
