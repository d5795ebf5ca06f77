#include "standin/display/kinds/frame.h"

#include "host/text.h"
#include "standin/display/flat.h"
#include "standin/display/letters.h"

#include <algorithm>

namespace standin {

namespace {

const double largestPart = 0.15; // of the height of the frame, for the letters
const double widestPart = 0.9;   // of its width, for the name

} // namespace

void drawFrame(const std::vector<OdGePoint3d>& corners, const OdString& name, const Pencil& pencil) {
    if (corners.size() < 2)
        return;
    std::vector<OdGePoint3d> border = corners;
    border.push_back(corners.front());
    pencil.path(border, pencil.world());
    Box box;
    for (const OdGePoint3d& corner : corners)
        box.add(flat(pencil.world() * corner));
    const QString text = hostqt::qString(name);
    const double width = lettersOf(text).width;
    if (!(width > 0))
        return;
    const double height = std::min(box.height() * largestPart, box.width() * widestPart / width);
    if (height > 0)
        pencil.draw({Shape::Text, {}, {box.center(), {height, 0}, {0, height}, {0.5, 0.5}}, text});
}

std::vector<OdGePoint3d> cornersIn(const DxfTagList& tags, std::string_view marker, int code) {
    const DxfTagList::Range part = tags.subclass(marker);
    return tags.points(tags.find(code, part) == DxfTagList::npos ? tags.own() : part, code);
}

OdString fileOf(const OdString& path) {
    const std::wstring text = path.wide();
    const std::size_t slash = text.find_last_of(L"/\\");
    return slash == std::wstring::npos ? path : OdString(text.substr(slash + 1));
}

} // namespace standin
