// Text of the drawing SDK: a wide string (32-bit units), made from 8-bit text by naming its code page.
#pragma once

#include <cstdarg>
#include <string>

enum OdCodePageId : int {
    CP_LOCAL_8BIT = 46, // the local 8-bit code page of the process
    CP_UTF8 = 65        // UTF-8, whatever the locale
};

class OdString {
public:
    OdString() = default;
    OdString(const wchar_t* text) : value(text ? text : L"") {}
    OdString(const wchar_t* text, int length) : value(text, static_cast<std::size_t>(length)) {}
    OdString(std::wstring text) : value(std::move(text)) {}
    // 8-bit text in `codePage`; a null pointer gives the empty string.
    OdString(const char* text, OdCodePageId codePage = CP_LOCAL_8BIT);

    const wchar_t* c_str() const { return value.c_str(); }
    const std::wstring& wide() const { return value; }
    std::string toLocal8Bit() const;
    std::string toUtf8() const;
    bool isEmpty() const { return value.empty(); }
    int getLength() const { return static_cast<int>(value.size()); }
    wchar_t getAt(int index) const { return value.at(static_cast<std::size_t>(index)); }
    void empty() { value.clear(); }

    // As strcmp; iCompare ignores the case of letters, in every alphabet.
    int compare(const OdString& other) const { return value.compare(other.value); }
    int iCompare(const OdString& other) const;
    int find(wchar_t character, int start = 0) const; // -1 when absent
    OdString left(int count) const { return value.substr(0, static_cast<std::size_t>(count)); }
    OdString mid(int start) const { return value.substr(static_cast<std::size_t>(start)); }
    OdString& trimLeft();
    OdString& trimRight();
    OdString makeUpper() const;
    // As swprintf; %s and %ls take wide text.
    OdString& format(const wchar_t* pattern, ...);
    OdString& formatV(const wchar_t* pattern, std::va_list arguments);

    OdString& operator+=(const OdString& other) {
        value += other.value;
        return *this;
    }
    friend OdString operator+(OdString left, const OdString& right) { return left += right; }
    friend bool operator==(const OdString& a, const OdString& b) { return a.value == b.value; }
    friend bool operator!=(const OdString& a, const OdString& b) { return a.value != b.value; }
    friend bool operator<(const OdString& a, const OdString& b) { return a.value < b.value; }

private:
    std::wstring value;
};
