// Records of free data; the only thing known of them is where their data begin.
#include "sdk/db/xrecord.h"

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbXrecord, OdDbObject)

namespace {
constexpr int kCloning = 280;
}

OdDbXrecord::OdDbXrecord() {
    startTags("XRECORD");
    content.append(100, "AcDbXrecord");
    content.append(kCloning, "1");
}

DxfTagList::Range OdDbXrecord::dataRange() const {
    DxfTagList::Range range{0, content.size()};
    while (range.begin < range.end && content[range.begin].value() != "AcDbXrecord")
        ++range.begin;
    if (range.begin < range.end)
        ++range.begin;
    if (range.begin < range.end && content[range.begin].code == kCloning)
        ++range.begin;
    return range;
}
