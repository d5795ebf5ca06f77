// Text of drawing files: code pages of old versions, UTF-8 of new ones, and the escapes of both.
#pragma once

#include "sdk/rx/od_string.h"

#include <string_view>

class QTextCodec;

class DxfCodec {
public:
    DxfCodec(); // UTF-8
    // Of the value of $DWGCODEPAGE; an unknown page is read as the western one, and `known` tells so.
    static DxfCodec forCodePage(std::string_view name, bool* known = nullptr);

    // \U+XXXX stands for a character, ^J, ^M and ^I for line feed, carriage return and tabulator, "^ " for ^.
    OdString decode(std::string_view bytes) const;
    // Characters that the code page lacks become \U+XXXX, control characters become blanks or the escapes
    // above: the result is always one line.
    std::string encode(const OdString& text) const;

private:
    explicit DxfCodec(QTextCodec* page) : codec(page) {}
    QTextCodec* codec;
};
