#include "standin/display/kinds/multileader_data.h"

#include <algorithm>

namespace standin {

namespace {

constexpr std::string_view kMarker = "AcDbMLeader";
constexpr int kContextStart = 300;

class Reader {
public:
    explicit Reader(const DxfTagList& object) : tags(object), part(object.subclass(kMarker)) {}

    // Lists begin and end with codes of their own; what a code means depends on the list that it is in.
    MultiLeaderData read() {
        for (at = part.begin; at < part.end; ++at) {
            const int code = tags[at].code;
            if (list == Whole)
                code == kContextStart ? enter(Context) : readWhole(code);
            else if (list == Context)
                code == 301 ? enter(Whole) : code == 302 ? beginBranch() : readContext(code);
            else if (list == Leader)
                code == 303 ? enter(Context) : code == 304 ? beginLine() : readBranch(code);
            else
                code == 305 ? enter(Leader) : readLine(code);
        }
        return std::move(data);
    }

private:
    enum List { Whole, Context, Leader, Line };

    void enter(List next) { list = next; }
    void beginBranch() {
        data.branches.emplace_back();
        enter(Leader);
    }
    void beginLine() {
        data.branches.back().lines.emplace_back();
        enter(Line);
    }

    double real() const { return dxfReal(tags[at].value()); }
    std::int64_t integer() const { return dxfInteger(tags[at].value()); }
    OdGePoint3d point() const { return tags.point({at, std::min(at + 3, part.end)}, tags[at].code); }

    void readWhole(int code) {
        if (code == 170)
            data.lineKind = static_cast<int>(integer());
        else if (code == 91)
            data.lineColor = integer();
        else if (code == 291)
            data.hasLandings = integer() != 0;
        else if (code == 42)
            data.arrowSize = real();
    }

    void readContext(int code) {
        switch (code) {
        case 290:
            data.hasText = integer() != 0;
            return;
        case 296:
            data.hasBlock = integer() != 0;
            return;
        case 140:
            data.arrowSize = real();
            return;
        default:
            readText(code);
            readBlock(code);
        }
    }

    void readText(int code) {
        if (code == 304)
            data.text = tags[at].value();
        else if (code == 41)
            data.textHeight = real();
        else if (code == 12)
            data.textPlace = point();
        else if (code == 13)
            data.textDirection = point().asVector();
        else if (code == 43)
            data.textWidth = std::max(0.0, real());
        else if (code == 45)
            data.lineSpacing = real() > 0 ? std::clamp(real(), 0.25, 4.0) : 1;
        else if (code == 171)
            data.textColumn = static_cast<int>(std::clamp<std::int64_t>(integer(), 1, 3)) - 1;
        else if (code == 90)
            data.textColor = integer();
        else if (code == 11)
            data.normal = point().asVector();
    }

    void readBlock(int code) {
        if (code == 341)
            data.block = dxfHandle(tags[at].value());
        else if (code == 14)
            data.normal = point().asVector();
        else if (code == 15)
            data.blockPlace = point();
        else if (code == 16)
            data.blockScale = OdGeScale3d(point().x, point().y, point().z);
        else if (code == 46)
            data.blockRotation = real();
    }

    void readBranch(int code) {
        MultiLeaderData::Branch& branch = data.branches.back();
        if (code == 10)
            branch.end = point();
        else if (code == 11)
            branch.landing = point().asVector();
        else if (code == 40)
            branch.landingLength = real();
        else if (code == 291)
            branch.hasLanding = integer() != 0;
    }

    void readLine(int code) {
        if (code == 10)
            data.branches.back().lines.back().push_back(point());
    }

    const DxfTagList& tags;
    const DxfTagList::Range part;
    std::size_t at = 0;
    List list = Whole;
    MultiLeaderData data;
};

} // namespace

bool hasMultiLeaderContext(const DxfTagList& tags) {
    return tags.find(kContextStart, tags.subclass(kMarker)) != DxfTagList::npos;
}

MultiLeaderData multiLeaderData(const DxfTagList& tags) { return Reader(tags).read(); }

} // namespace standin
