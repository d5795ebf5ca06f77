// What a picture of a drawing is to show, and how.
#pragma once

#include "standin/display/display_list.h"
#include "standin/display/view.h"

#include <QColor>
#include <QImage>
#include <QPen>
#include <memory>
#include <optional>

namespace standin {

// Black or white, whatever is better seen on the colour.
QColor contrastOf(const QColor& background);

struct PictureOrder {
    static constexpr double kUsualBudget = 1e8;
    static constexpr double kSmallBudget = 1e7; // of a picture that is waited for

    const DisplayList* list = nullptr;
    std::shared_ptr<const std::vector<const Item*>> only{}; // these alone, in any order; null: all in sight
    View view{};
    double ratio = 1; // device pixels for each pixel
    QColor background = Qt::black;
    std::optional<QPen> pen{};    // all shapes in this one, over nothing
    double budget = kUsualBudget; // of points and pixels of lines; what would cost more is not painted

    bool isSameAs(const PictureOrder& other) const {
        return list == other.list && only == other.only && view == other.view && ratio == other.ratio &&
               background == other.background && pen == other.pen && budget == other.budget;
    }
    // More items than these are painted without smooth edges.
    std::size_t mostSmooth() const { return pen ? 2000 : 20000; }
    QColor foreground() const { return pen ? pen->color() : contrastOf(background); }
    // An ordinary picture has its background, one in a pen of its own lies over others.
    QColor ground() const { return pen ? QColor(Qt::transparent) : background; }
    QImage::Format format() const { return pen ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32; }
    QRect window() const { return QRect(QPoint(), view.size()); }
    // What the rows of pixels from `top` to `bottom` show, with some more around it.
    Box boxOfRows(double top, double bottom, double more) const;
    // The items that touch this one are in the picture.
    Box box() const;
};

// The items in the picture, in any order, until the visitor says false.
void visitItems(const PictureOrder& order, const std::function<bool(const Item&)>& visitor);
// As many of the items in the picture, in any order, as are allowed.
std::vector<const Item*> itemsOf(const PictureOrder& order, std::size_t most);
// How much work the items in the picture are, as a number of lines; counting ends at `most`.
std::size_t effortOf(const PictureOrder& order, std::size_t most);
std::size_t effortOf(const Item& item);

} // namespace standin
