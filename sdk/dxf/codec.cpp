// Code pages come from Qt; here is what drawing files add to them.
#include "sdk/dxf/codec.h"

#include "sdk/dxf/code_pages.h"
#include "sdk/rx/wide_text.h"

#include <QTextCodec>

namespace {

// Bytes 0x80 to 0x9F that the western page leaves open survive as the control characters of that number.
QTextCodec* westernPage() { return QTextCodec::codecForName("windows-1252"); }

bool isPlain(std::string_view bytes) {
    for (const char c : bytes)
        if (static_cast<unsigned char>(c) >= 0x80 || c == '\\' || c == '^')
            return false;
    return true;
}

int hexValue(const QString& text, int start) {
    int value = 0;
    for (int i = start; i < start + 4; ++i) {
        const int digit = i < text.size() ? QString("0123456789ABCDEF").indexOf(text[i].toUpper()) : -1;
        if (digit < 0)
            return -1;
        value = value * 16 + digit;
    }
    return value;
}

QChar controlOf(QChar c) {
    switch (c.unicode()) {
    case 'J':
        return '\n';
    case 'M':
        return '\r';
    case 'I':
        return '\t';
    case ' ':
        return '^';
    default:
        return {};
    }
}

// One pass, so that what an escape gives is never read as the start of another.
QString withoutEscapes(const QString& text) {
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        if (text.midRef(i, 3) == QLatin1String("\\U+") && hexValue(text, i + 3) >= 0) {
            result += QChar(static_cast<ushort>(hexValue(text, i + 3)));
            i += 6;
        } else if (text[i] == '^' && i + 1 < text.size() && !controlOf(text[i + 1]).isNull()) {
            result += controlOf(text[++i]);
        } else {
            result += text[i];
        }
    }
    return result;
}

// What reads like an escape but is none gets its first character escaped.
QString withEscapes(const QString& text) {
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const ushort c = text[i].unicode();
        if (text.midRef(i, 3) == QLatin1String("\\U+") && hexValue(text, i + 3) >= 0)
            result += QStringLiteral("\\U+005C");
        else if (c == '\n' || c == '\r' || c == '\t')
            result += QString("^") + QChar(c + 64);
        else if (c == '^' && i + 1 < text.size() && !controlOf(text[i + 1]).isNull())
            result += "^ ";
        else
            result += c < 32 || c == 127 ? QChar(' ') : text[i];
    }
    return result;
}

} // namespace

DxfCodec::DxfCodec() : codec(QTextCodec::codecForName("UTF-8")) {}

DxfCodec DxfCodec::forCodePage(std::string_view name, bool* known) {
    QTextCodec* page = dxfCodePage(name);
    if (known)
        *known = page != nullptr;
    return DxfCodec(page ? page : westernPage());
}

OdString DxfCodec::decode(std::string_view bytes) const {
    if (isPlain(bytes))
        return std::wstring(bytes.begin(), bytes.end());
    const QString text = codec->toUnicode(bytes.data(), static_cast<int>(bytes.size()));
    return withoutEscapes(text).toStdWString();
}

std::string DxfCodec::encode(const OdString& text) const {
    const QString oneLine = withEscapes(odQString(text.wide()));
    const bool unicode = codec->name() == "UTF-8";
    if (unicode || codec->canEncode(oneLine))
        return codec->fromUnicode(oneLine).toStdString();
    std::string result;
    for (const QChar c : oneLine) {
        if (!c.isSurrogate() && codec->canEncode(c))
            result += codec->fromUnicode(QString(c)).toStdString();
        else
            result += "\\U+" + QString("%1").arg(c.unicode(), 4, 16, QChar('0')).toUpper().toStdString();
    }
    return result;
}
