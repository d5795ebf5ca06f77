// Objects of programs that are not there: the frame of the picture that those programs left behind.
#include "standin/display/kinds.h"
#include "standin/display/kinds/frame.h"

#include <cstring>
#include <optional>

namespace standin {

namespace {

constexpr int kData = 310;
constexpr std::int32_t kExtents = 1; // a part of the picture: six numbers

int digitOf(char c) {
    return c >= '0' && c <= '9'   ? c - '0'
           : c >= 'A' && c <= 'F' ? c - 'A' + 10
           : c >= 'a' && c <= 'f' ? c - 'a' + 10
                                  : -1;
}

std::string pictureOf(const OdDbEntity& entity) {
    std::string bytes;
    for (const DxfTag& tag : entity.tags()) {
        const std::string_view digits = tag.code == kData ? dxfTrimmed(tag.value()) : std::string_view();
        for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
            if (digitOf(digits[i]) >= 0 && digitOf(digits[i + 1]) >= 0)
                bytes += static_cast<char>(digitOf(digits[i]) * 16 + digitOf(digits[i + 1]));
    }
    return bytes;
}

// A head of two numbers, then parts: their size in bytes, their kind, their contents.
std::optional<OdGeExtents3d> extentsOf(const OdDbEntity& entity) {
    const std::string bytes = pictureOf(entity);
    std::size_t at = 8;
    while (at + 8 <= bytes.size()) {
        std::int32_t part[2];
        std::memcpy(part, bytes.data() + at, sizeof part);
        const auto size = static_cast<std::size_t>(part[0]);
        double numbers[6];
        if (part[1] == kExtents && at + 8 + sizeof numbers <= bytes.size()) {
            std::memcpy(numbers, bytes.data() + at + 8, sizeof numbers);
            OdGeExtents3d found;
            found.addPoint({numbers[0], numbers[1], numbers[2]});
            found.addPoint({numbers[3], numbers[4], numbers[5]});
            return found;
        }
        if (part[0] < 8)
            break;
        at += size;
    }
    return std::nullopt;
}

} // namespace

bool draw::canDrawProxy(const OdDbEntity& entity) { return extentsOf(entity).has_value(); }

void draw::proxy(const OdDbEntity& entity, const Pencil& pencil) {
    const auto box = extentsOf(entity);
    if (!box)
        return;
    const OdGePoint3d a = box->minPoint(), b = box->maxPoint();
    drawFrame({a, {b.x, a.y, a.z}, b, {a.x, b.y, a.z}}, entity.dxfName(), pencil);
}

} // namespace standin
