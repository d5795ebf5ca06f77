#include "standin/display/marks_image.h"

namespace standin {

void MarksImage::find(const DisplayList& list, const OdDbObjectIdArray& selected) {
    if (marks && revision == list.revision())
        return;
    std::unordered_set<OdDbObjectId> marked = list.highlighted();
    marked.insert(selected.begin(), selected.end());
    std::vector<const Item*> found;
    found.reserve(marked.size());
    for (const OdDbObjectId& id : marked)
        if (const Item* item = list.find(id))
            found.push_back(item);
    marks = std::make_shared<const std::vector<const Item*>>(std::move(found));
    revision = list.revision();
}

PictureOrder MarksImage::orderOf(const OdDbObjectIdArray& selected, const PictureOrder& scene) {
    find(*scene.list, selected);
    PictureOrder order = scene;
    order.only = marks;
    order.pen = pen;
    return order;
}

} // namespace standin
