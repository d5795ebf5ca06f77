// The picture of what is selected or highlighted.
#pragma once

#include "standin/display/live_picture.h"

namespace standin {

// Over nothing, in one pen.
class MarksImage : public LivePicture {
public:
    void setPen(const QPen& wanted) { pen = wanted; }
    void forgetMarks() { marks.reset(); } // something else is selected or highlighted
    // Of these objects and of those that are highlighted; the rest is that of the
    // picture below.
    PictureOrder orderOf(const OdDbObjectIdArray& selected, const PictureOrder& scene);

private:
    void find(const DisplayList& list, const OdDbObjectIdArray& selected);

    QPen pen;
    std::shared_ptr<const std::vector<const Item*>> marks; // null when they are not known
    std::uint64_t revision = 0;                            // of the list, when they were found
};

} // namespace standin
