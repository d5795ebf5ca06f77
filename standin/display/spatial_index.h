// Finds the items near a place: a tree of ever smaller quarters of the drawing. An item lies in the smallest
// quarter that, doubled in size about its middle, surely holds it.
#pragma once

#include "standin/display/box.h"

#include <array>
#include <functional>
#include <vector>

namespace standin {

class SpatialIndex {
public:
    explicit SpatialIndex(const Box& area = {});
    // Boxes outside of the area are taken, too; only more slowly found.
    void insert(int item, const Box& box);
    void remove(int item, const Box& box); // `box` as it was inserted
    // Items whose box may touch `box`, in no order.
    void visit(const Box& box, const std::function<void(int item)>& visitor) const;
    // The same until the visitor says false.
    void visitWhile(const Box& box, const std::function<bool(int item)>& visitor) const;

private:
    static constexpr int kNone = -1; // in the place of a node's number
    struct Node {
        Box area;
        std::array<int, 4> quarters{{kNone, kNone, kNone, kNone}};
        std::vector<int> items;
    };
    int addNode(const Box& area);
    int nodeFor(const Box& box, bool create);
    static Box quarterOf(const Box& area, int quarter);
    static Box reachOf(const Box& area);

    std::vector<Node> nodes; // the first is the root
    std::vector<int> outside;
};

} // namespace standin
