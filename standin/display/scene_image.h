// The picture of a drawing as it was last painted, so that the cursor may move over it without painting it
// anew.
#pragma once

#include "standin/display/display_list.h"
#include "standin/display/view.h"

#include <QColor>
#include <QPixmap>

namespace standin {

// Black or white, whatever is better seen on the colour.
QColor contrastOf(const QColor& background);

class SceneImage {
public:
    void setBackground(const QColor& color);
    void forget() { isCurrent = false; } // another drawing is shown than before
    // The picture of the view, for a screen of `ratio` device pixels for each pixel. A view that was only
    // moved has its new borders painted alone.
    const QPixmap& of(const DisplayList& list, const View& view, double ratio);

private:
    bool movedTo(const DisplayList& list, const View& view);
    void paint(const DisplayList& list, const QRect& part);

    QPixmap image;
    View painted;
    std::uint64_t paintedRevision = 0; // of the list
    QColor background = Qt::black;
    bool isCurrent = false;
};

} // namespace standin
