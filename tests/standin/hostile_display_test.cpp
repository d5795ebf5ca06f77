// Small files that ask for endless pictures: what is made, painted and sketched of them stays within bounds
// of memory and of steps, and what is cut off is named.
#include "standin/display/picking.h"
#include "standin/display/picture_budget.h"
#include "standin/display/preview_picture.h"
#include "standin/display/sketch.h"
#include "tests/standin/hostile_drawings.h"
#include "tests/standin/shown_drawing.h"
#include "tests/support/memory_bound.h"

#include <gtest/gtest.h>

namespace {

using namespace standin;

const std::size_t megabytes = 1500; // of addresses: the stacks and stores of the painting threads among them

struct Amount {
    std::size_t shapes = 0, points = 0, letters = 0;
};

Amount amountOf(const DisplayList& list) {
    Amount amount;
    list.visit({-1e15, -1e15, 1e15, 1e15}, [&](const Item& item) {
        amount.shapes += item.shapes.size();
        for (const Shape& shape : item.shapes) {
            amount.points += shape.points.size();
            amount.letters += static_cast<std::size_t>(shape.text.size());
        }
        return true;
    });
    return amount;
}

PictureOrder orderFor(const DisplayList& list) {
    PictureOrder order;
    order.list = &list;
    order.view.resize({800, 500});
    order.view.fit(list.extents());
    return order;
}

// What is painted in full, as the budget counts it.
double paintedCost(const PictureOrder& order) {
    std::vector<const Item*> items = itemsOf(order, order.list->size());
    std::sort(items.begin(), items.end());
    const PictureEnd end = endOf(items, order);
    double cost = 0;
    for (const Item* item : items) {
        const std::size_t count = item == end.item ? end.shapes : item->shapes.size();
        for (std::size_t i = 0; i < count && !end.isBefore(*item); ++i)
            cost += costOf(item->shapes[i], order);
    }
    return cost;
}

double costOfAll(PictureOrder order) {
    order.budget = HUGE_VAL;
    return paintedCost(order);
}

class HostileDrawings : public testing::TestWithParam<hostile::Named> {
protected:
    MemoryBound bound{megabytes};
    shown::Drawing drawing{GetParam().parts.entities, GetParam().parts.sections};
};

TEST_P(HostileDrawings, AreShownWithinTheBoundsAndWhatIsCutOffIsNamed) {
    const Amount amount = amountOf(drawing.list);
    EXPECT_GT(amount.shapes, 0u) << "nothing is shown at all";
    EXPECT_LE(amount.shapes, 2 * ItemBuilder::kMostShapes);
    EXPECT_LE(amount.points, 2 * ItemBuilder::kMostPoints);
    EXPECT_LE(amount.letters, 500000u);
    const QStringList notices = drawing.list.unshown().notices();
    EXPECT_EQ(!notices.isEmpty(), GetParam().isCut);
    EXPECT_EQ(notices.filter("shown only in part"), notices);
}

TEST_P(HostileDrawings, ArePaintedSketchedAndPickedWithinTheBudget) {
    PictureOrder order = orderFor(drawing.list);
    order.budget = PictureOrder::kSmallBudget;
    EXPECT_LE(paintedCost(order), order.budget);
    LivePicture picture;
    const QImage image = picture.finished(order);
    EXPECT_EQ(picture.isCut(), GetParam().isTooFull) << "all would cost " << costOfAll(order);
    EXPECT_GT(image.convertToFormat(QImage::Format_Indexed8).colorCount(), 1) << "nothing is painted";
    QImage rough(order.view.size(), QImage::Format_RGB32);
    Sketch sketch(rough, order, {});
    sketch.draw();
    EXPECT_LE(sketch.spent(), Sketch::kBudget);
    EXPECT_TRUE(previewPicture(drawing.list, Qt::black).hasBmp());
    const Box all = drawing.list.extents();
    itemAt(drawing.list, all.center(), 3 / order.view.scale(), order.view.scale());
    EXPECT_FALSE(itemsIn(drawing.list, all.grown(1), true, order.view.scale()).empty());
}

INSTANTIATE_TEST_SUITE_P(Display, HostileDrawings, testing::ValuesIn(hostile::all()),
                         [](const auto& tested) { return std::string(tested.param.name); });

// Areas of 100 by 100 pixels side by side, in a picture that is paid for one and a half of them.
TEST(PictureBudget, LeavesDotsOfWhatIsBehindItsEnd) {
    std::string areas;
    for (int i = 0; i < 3; ++i)
        areas += shown::head("SOLID", "AcDbTrace") + shown::point(10, 2 * i, 0) +
                 shown::point(11, 2 * i + 1, 0) + shown::point(12, 2 * i, 1) + shown::point(13, 2 * i + 1, 1);
    const shown::Drawing drawing(areas);
    PictureOrder order = orderFor(drawing.list);
    order.view.fit({0, 0, 5, 1});
    const double each = costOf(drawing.shape(), order);
    EXPECT_GT(each, 100);
    const auto lit = [&](double budget) {
        order.budget = budget;
        const QImage image = LivePicture().finished(order);
        std::vector<bool> result;
        for (int i = 0; i < 3; ++i)
            for (const double x : {0.3, 0.5})
                result.push_back(image.pixelColor(order.view.toPixel({2 * i + x, 0.5}).toPoint()) ==
                                 Qt::white);
        return result;
    };
    EXPECT_EQ(lit(3.5 * each), (std::vector<bool>{true, true, true, true, true, true}));
    EXPECT_EQ(lit(1.5 * each), (std::vector<bool>{true, true, false, false, false, true}));
}

TEST(PictureBudget, OfOneItemIsPaidShapeByShapeInItsOrder) {
    const shown::Drawing drawing(
        shown::head("INSERT", "AcDbBlockReference") +
            "2\nB\n10\n0\n20\n0\n70\n1\n71\n50\n44\n10.0\n45\n10.0\n",
        shown::blocks(shown::blockOf("B", shown::head("LINE", "AcDbLine") + shown::point(10, 0, 0) +
                                              shown::point(11, 9, 0))));
    PictureOrder order = orderFor(drawing.list);
    order.budget = 10.5 * costOf(drawing.shape(), order);
    const PictureEnd end = endOf(drawing.items, order);
    EXPECT_EQ(end.item, drawing.items.at(0));
    EXPECT_EQ(end.shapes, 10u);
}

TEST(PictureBudget, CountsWhatTheViewShowsAndNotWhatTheDrawingHas) {
    const shown::Drawing drawing(shown::head("LINE", "AcDbLine") + shown::point(10, -1e9, 0) +
                                 shown::point(11, 1e9, 0));
    PictureOrder order = orderFor(drawing.list);
    order.view.fit({-1, -1, 1, 1});
    EXPECT_LT(costOf(drawing.shape(), order), 1000); // as wide as the window
    EXPECT_GE(mostCostOf(*drawing.items.at(0), order), costOf(drawing.shape(), order));
    order.view.fit({-1, 1000, 1, 1001});
    EXPECT_LT(costOf(drawing.shape(), order), 3);
}

} // namespace
