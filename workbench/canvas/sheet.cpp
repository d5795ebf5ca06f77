#include "workbench/canvas/sheet.h"

#include "standin/documents/document.h"

using namespace standin;

namespace workbench {

namespace {

const std::size_t mostFormer = 100;
const qint64 continuousWithin = 700; // milliseconds

} // namespace

Sheet::Sheet(standin::Document& drawing) : document(drawing), list(drawing.database()) {}

Sheet::~Sheet() = default;

void Sheet::resize(const QSize& pixels) {
    current.resize(pixels);
    if (!isChosen)
        showAll();
}

void Sheet::showAll() {
    list.refresh();
    current.fit(list.extents());
}

View& Sheet::change(bool continuous) {
    const bool goesOn = continuous && sinceChange.isValid() && !sinceChange.hasExpired(continuousWithin);
    if (!goesOn)
        former.push_back(current);
    if (former.size() > mostFormer)
        former.erase(former.begin());
    if (continuous)
        sinceChange.start();
    else
        sinceChange.invalidate();
    isChosen = true;
    return current;
}

bool Sheet::previous() {
    if (former.empty())
        return false;
    const QSize size = current.size();
    current = former.back();
    current.resize(size);
    former.pop_back();
    sinceChange.invalidate();
    return true;
}

} // namespace workbench
