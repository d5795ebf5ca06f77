// Faces in space, by those of their edges that are visible.
#include "standin/display/kinds.h"

void standin::draw::face(const OdDbEntity& entity, const Pencil& pencil) {
    const DxfTagList& tags = entity.tags();
    const std::int64_t hidden = tags.integer(tags.own(), 70);
    const int codes[] = {10, 11, 12, 13};
    const auto corner = [&](int number) {
        const int code = codes[number % 4];
        // A triangle may do without its fourth corner.
        return tags.point(tags.own(), tags.find(code) == DxfTagList::npos ? 12 : code);
    };
    std::vector<OdGePoint3d> run{corner(0)};
    for (int edge = 0; edge < 4; ++edge) {
        if ((hidden >> edge & 1) != 0) {
            pencil.path(run, pencil.world());
            run.clear();
        }
        const OdGePoint3d next = corner(edge + 1);
        if (run.empty() || run.back() != next)
            run.push_back(next);
    }
    pencil.path(run, pencil.world());
}
