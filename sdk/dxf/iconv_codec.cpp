// A codec for Qt over iconv, one conversion at a time: such drawings are few, and small.
#include "sdk/dxf/iconv_codec.h"

#include <QTextCodec>
#include <iconv.h>
#include <map>

namespace {

class Conversion {
public:
    Conversion(const char* to, const char* from) : handle(iconv_open(to, from)) {}
    ~Conversion() {
        if (isKnown())
            iconv_close(handle);
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;
    bool isKnown() const { return handle != reinterpret_cast<iconv_t>(-1); }

    // What can't be converted is left out byte by byte, `instead` put in its place, and counted.
    QByteArray run(QByteArray input, const QByteArray& instead, int& faults) const {
        QByteArray output;
        char* in = input.data();
        std::size_t left = static_cast<std::size_t>(input.size());
        while (left > 0) {
            char buffer[256];
            char* out = buffer;
            std::size_t room = sizeof buffer;
            const bool failed = iconv(handle, &in, &left, &out, &room) == static_cast<std::size_t>(-1);
            output.append(buffer, static_cast<int>(out - buffer));
            if (!failed || errno == E2BIG)
                continue;
            output += instead;
            ++faults;
            ++in;
            --left;
        }
        return output;
    }

private:
    iconv_t handle;
};

class IconvCodec : public QTextCodec {
public:
    explicit IconvCodec(std::string page) : pageName(std::move(page)) {}
    QByteArray name() const override { return QByteArray::fromStdString(pageName); }
    int mibEnum() const override { return 0; }

protected:
    QString convertToUnicode(const char* text, int length, ConverterState* state) const override {
        int faults = 0;
        const QByteArray unicode =
            Conversion("UTF-8", pageName.c_str()).run(QByteArray(text, length), "\xEF\xBF\xBD", faults);
        if (state)
            state->invalidChars += faults;
        return QString::fromUtf8(unicode);
    }
    // A character of the text at a time, so that one that the page lacks is one fault.
    QByteArray convertFromUnicode(const QChar* text, int length, ConverterState* state) const override {
        const Conversion conversion(pageName.c_str(), "UTF-8");
        QByteArray bytes;
        for (const uint character : QString(text, length).toUcs4()) {
            int faults = 0;
            const QByteArray converted =
                conversion.run(QString::fromUcs4(&character, 1).toUtf8(), QByteArray(), faults);
            bytes += faults == 0 ? converted : QByteArray("?");
            if (state && faults != 0)
                ++state->invalidChars;
        }
        return bytes;
    }

private:
    std::string pageName;
};

} // namespace

QTextCodec* dxfIconvCodec(const std::string& name) {
    static std::map<std::string, QTextCodec*> codecs;
    const auto found = codecs.find(name);
    if (found != codecs.end())
        return found->second;
    const bool isKnown = Conversion("UTF-8", name.c_str()).isKnown();
    return codecs[name] = isKnown ? new IconvCodec(name) : nullptr; // Qt owns every codec
}
