// The picture of what is selected or highlighted, kept for as long as neither that nor the view changes.
#pragma once

#include "standin/display/display_list.h"
#include "standin/display/view.h"

#include <QPen>
#include <QPixmap>

namespace standin {

class MarksImage {
public:
    void setPen(const QPen& wanted) { pen = wanted; }
    void forget() { isCurrent = false; } // something else is selected or highlighted
    // Of these objects and of those that are highlighted, over nothing; null when there are none.
    const QPixmap& of(const DisplayList& list, const OdDbObjectIdArray& selected, const View& view,
                      double ratio);

private:
    void paint(const DisplayList& list, const std::unordered_set<OdDbObjectId>& marked);

    QPixmap image;
    QPen pen;
    View painted;
    bool isCurrent = false;
};

} // namespace standin
