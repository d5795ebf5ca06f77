// One open drawing on the canvas: what it shows, and the part of it that is in view.
#pragma once

#include "standin/display/display_list.h"
#include "standin/display/view.h"

#include <QElapsedTimer>

namespace standin {
class Document;
}

namespace workbench {

class Sheet {
public:
    explicit Sheet(standin::Document& drawing);
    ~Sheet();
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    standin::Document& document;
    standin::DisplayList list;
    QStringList told;       // what of the drawing is not shown
    bool isCutTold = false; // the user knows that the picture leaves something out

    const standin::View& view() const { return current; }
    // Until the user has chosen a view, all of the drawing is shown, however large the window is.
    void resize(const QSize& pixels);
    void showAll();
    // Keeps the present view for `previous` before it is changed. Changes that follow each other at once, as
    // of a turning wheel, count as one when they are `continuous`.
    standin::View& change(bool continuous = false);
    bool previous(); // false when there is none

private:
    standin::View current;
    std::vector<standin::View> former;
    QElapsedTimer sinceChange; // since the last continuous one
    bool isChosen = false;
};

} // namespace workbench
