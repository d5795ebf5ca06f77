#include "standin/display/spatial_index.h"

namespace standin {

namespace {

const int deepest = 20;

} // namespace

SpatialIndex::SpatialIndex(const Box& area) {
    const Box whole = area.isEmpty() ? Box{0, 0, 1, 1} : area;
    const double side = std::max({whole.width(), whole.height(), 1e-6});
    addNode({whole.left, whole.bottom, whole.left + side, whole.bottom + side});
}

int SpatialIndex::addNode(const Box& area) {
    nodes.emplace_back();
    nodes.back().area = area;
    return static_cast<int>(nodes.size()) - 1;
}

Box SpatialIndex::quarterOf(const Box& area, int quarter) {
    const QPointF middle = area.center();
    return {quarter & 1 ? middle.x() : area.left, quarter & 2 ? middle.y() : area.bottom,
            quarter & 1 ? area.right : middle.x(), quarter & 2 ? area.top : middle.y()};
}

Box SpatialIndex::reachOf(const Box& area) { return area.grown(area.width() / 2); }

// The node that the box belongs to; none when it lies outside, or has no node as yet and none is to be made.
int SpatialIndex::nodeFor(const Box& box, bool create) {
    if (!reachOf(nodes[0].area).contains(box) || !nodes[0].area.contains(box.center()))
        return kNone;
    const double size = std::max(box.width(), box.height());
    int node = 0;
    for (int depth = 0; depth < deepest; ++depth) {
        const Box area = nodes[static_cast<std::size_t>(node)].area;
        if (size > area.width() / 2)
            break;
        const QPointF middle = area.center();
        const int quarter = (box.center().x() > middle.x() ? 1 : 0) | (box.center().y() > middle.y() ? 2 : 0);
        int next = nodes[static_cast<std::size_t>(node)].quarters[static_cast<std::size_t>(quarter)];
        if (next == kNone) {
            if (!create)
                return kNone;
            next = addNode(quarterOf(area, quarter));
            nodes[static_cast<std::size_t>(node)].quarters[static_cast<std::size_t>(quarter)] = next;
        }
        node = next;
    }
    return node;
}

void SpatialIndex::insert(int item, const Box& box) {
    const int node = nodeFor(box, true);
    (node == kNone ? outside : nodes[static_cast<std::size_t>(node)].items).push_back(item);
}

void SpatialIndex::remove(int item, const Box& box) {
    const int node = nodeFor(box, false);
    std::vector<int>& items = node == kNone ? outside : nodes[static_cast<std::size_t>(node)].items;
    items.erase(std::remove(items.begin(), items.end(), item), items.end());
}

void SpatialIndex::visit(const Box& box, const std::function<void(int item)>& visitor) const {
    visitWhile(box, [&](int item) {
        visitor(item);
        return true;
    });
}

void SpatialIndex::visitWhile(const Box& box, const std::function<bool(int item)>& visitor) const {
    if (!std::all_of(outside.begin(), outside.end(), visitor))
        return;
    std::vector<int> open{0};
    while (!open.empty()) {
        const Node& node = nodes[static_cast<std::size_t>(open.back())];
        open.pop_back();
        if (!reachOf(node.area).intersects(box))
            continue;
        if (!std::all_of(node.items.begin(), node.items.end(), visitor))
            return;
        for (const int quarter : node.quarters)
            if (quarter != kNone)
                open.push_back(quarter);
    }
}

} // namespace standin
