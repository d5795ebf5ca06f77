// Binary drawings, as the text of the same tags; where one is damaged, the byte is told.
#include "sdk/dxf/binary_text.h"

#include "sdk/dxf/scanner.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

std::string start() { return std::string("AutoCAD Binary DXF\r\n\x1a\0", 22); }

template <class T> std::string raw(T value) {
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

std::string text(const std::string& value) { return value + '\0'; }
std::string code(int number) { return raw(static_cast<std::int16_t>(number)); }
std::string oldCode(int number) { return raw(static_cast<std::uint8_t>(number)); }

const std::string kEof = code(0) + text("EOF");

struct Fault {
    std::string reason;
    std::ptrdiff_t at = -1;
};

Fault faultOf(const std::string& bytes) {
    try {
        textOfBinaryDxf(bytes);
    } catch (const DxfFault& fault) {
        return {fault.reason, fault.position - bytes.data()};
    }
    return {};
}

} // namespace

TEST(BinaryDrawings, AreKnownByTheirFirst22Bytes) {
    EXPECT_TRUE(isBinaryDxf(start()));
    EXPECT_TRUE(isBinaryDxf("another" + start().substr(7) + "more"));
    EXPECT_FALSE(isBinaryDxf(start().substr(0, 21)));
    EXPECT_FALSE(isBinaryDxf(start().substr(1)));
    EXPECT_FALSE(isBinaryDxf("AutoCAD"));
    EXPECT_FALSE(isBinaryDxf(""));
}

TEST(BinaryDrawings, HaveAValueOfEachKind) {
    const std::string bytes = start() + code(0) + text("a\nb\rc") + code(10) + raw(1.5) + code(70) +
                              raw(std::int16_t{-2}) + code(90) + raw(std::int32_t{-70000}) + code(160) +
                              raw(std::int64_t{-5000000000}) + code(290) + raw(std::uint8_t{1}) + code(310) +
                              raw(std::uint8_t{3}) + "\x01\xAB\xF0" + code(1071) + raw(std::int32_t{7}) +
                              kEof + "not read any more";
    EXPECT_EQ(textOfBinaryDxf(bytes),
              "  0\na b c\n 10\n1.5\n 70\n-2\n 90\n-70000\n160\n-5000000000\n290\n1\n310\n"
              "01ABF0\n1071\n7\n  0\nEOF\n");
}

TEST(BinaryDrawings, OfOldVersionsHaveCodesOfAByte) {
    const std::string bytes = start() + oldCode(0) + text("SECTION") + oldCode(70) + raw(std::int16_t{5}) +
                              oldCode(255) + code(1000) + text("long") + oldCode(255) + code(290) +
                              raw(std::int16_t{1}) + oldCode(0) + text("EOF");
    EXPECT_EQ(textOfBinaryDxf(bytes), "  0\nSECTION\n 70\n5\n1000\nlong\n290\n1\n  0\nEOF\n");
}

TEST(BinaryDrawings, EndWhereTheirBytesEnd) {
    EXPECT_EQ(textOfBinaryDxf(start()), "");
    EXPECT_EQ(textOfBinaryDxf(start() + code(8) + text("EOF") + code(0) + text("EOFX")),
              "  8\nEOF\n  0\nEOFX\n");
    EXPECT_EQ(textOfBinaryDxf(start() + code(0) + text(" EOF ") + "x"), "  0\n EOF \n");
}

TEST(BinaryDrawings, SayWhereTheyAreDamaged) {
    const std::string head = start() + code(8) + text("0"); // 26 bytes
    const auto expectFault = [&head](const std::string& rest, const char* reason, std::ptrdiff_t at) {
        const Fault fault = faultOf(head + rest);
        EXPECT_EQ(fault.reason, reason);
        EXPECT_EQ(fault.at, at) << reason;
    };
    expectFault(code(8) + "abc", "the file ends within a text", 28);
    expectFault("\x08", "the file ends within a value", 26);
    expectFault(code(10) + raw(1.5).substr(1), "the file ends within a value", 28);
    expectFault(code(70) + "x", "the file ends within a value", 28);
    expectFault(code(310) + "\x03"
                            "ab",
                "the file ends within a value", 29);
    expectFault(code(1072) + text("x"), "a group code out of range", 26);
    expectFault(code(-1) + text("x"), "a group code out of range", 26);
    expectFault(code(80) + text("x"), "a group code out of range", 26);
    EXPECT_EQ(faultOf(head + code(310) +
                      "\x02"
                      "ab" +
                      kEof)
                  .reason,
              "");
}
