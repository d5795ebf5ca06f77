// The host's two string classes: a single pointer to a zero-ended buffer, never null, so that a zero first
// character is the test for empty.
#pragma once

#include <cstddef>

class CXString {
public:
    CXString();
    CXString(const char* text);    // null gives the empty string
    CXString(const wchar_t* text); // in the local 8-bit code page
    CXString(const CXString& other);
    CXString(CXString&& other) noexcept;
    ~CXString();
    CXString& operator=(const CXString& other);
    CXString& operator=(CXString&& other) noexcept;
    CXString& operator=(const char* text);

    operator const char*() const { return buffer; }
    const char* c_str() const { return buffer; }
    bool isEmpty() const { return buffer[0] == 0; }
    void AssignCopy(const char* text, unsigned length);
    void ConcatCopy(const char* text, unsigned length);
    CXString& operator+=(const CXString& other);
    friend CXString operator+(CXString left, const CXString& right) { return left += right; }
    int Compare(const char* other) const;  // 0 when equal
    int CompareI(const char* other) const; // ignores the case of ASCII letters
    void Format(const char* pattern, ...);
    void AddDirDelim();          // appends the directory delimiter
    std::size_t GetSize() const; // characters before the ending zero

private:
    char* buffer;
};

class CXStringW {
public:
    CXStringW();
    CXStringW(const char* text); // from the local 8-bit code page
    CXStringW(const wchar_t* text);
    CXStringW(const CXStringW& other);
    CXStringW(CXStringW&& other) noexcept;
    ~CXStringW();
    CXStringW& operator=(const CXStringW& other);
    CXStringW& operator=(CXStringW&& other) noexcept;
    CXStringW& operator=(const wchar_t* text);

    operator const wchar_t*() const { return buffer; }
    const wchar_t* c_str() const { return buffer; }
    bool isEmpty() const { return buffer[0] == 0; }
    void AssignCopy(const wchar_t* text, unsigned length);
    void ConcatCopy(const wchar_t* text, unsigned length);
    CXStringW& operator+=(const CXStringW& other);
    int CompareI(const wchar_t* other) const;
    int Find(wchar_t character, int start = 0) const; // -1 if absent
    void Delete(int start, int count);
    void Format(const wchar_t* pattern, ...); // %s takes wide text; the decimal point is a point
    void AddDirDelim();
    std::size_t GetLength() const;
    std::size_t GetSize() const { return GetLength(); }

private:
    wchar_t* buffer;
};
