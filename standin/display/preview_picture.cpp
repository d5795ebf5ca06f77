#include "standin/display/preview_picture.h"

#include "standin/display/live_picture.h"

#include <QBuffer>
#include <algorithm>
#include <map>

namespace standin {

namespace {

const int longerSide = 200; // pixels
const std::size_t mostColors = 256;
const int fileHeader = 14; // bytes of a bitmap file that a drawing does without

QSize pictureSize(const Box& box) {
    const double longer = std::max(box.width(), box.height());
    const auto pixels = [longer](double side) {
        return longer > 0 ? std::max(1, qRound(longerSide * side / longer)) : longerSide;
    };
    return {pixels(box.width()), pixels(box.height())};
}

// The colours that fill most of the picture.
QVector<QRgb> mainColors(const QImage& picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    std::vector<std::pair<int, QRgb>> colors;
    for (const auto& [color, count] : counts)
        colors.emplace_back(-count, color);
    std::sort(colors.begin(), colors.end());
    QVector<QRgb> result;
    for (std::size_t i = 0; i < std::min(colors.size(), mostColors); ++i)
        result << colors[i].second;
    return result;
}

std::string bitmapOf(const QImage& picture) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    picture.convertToFormat(QImage::Format_Indexed8, mainColors(picture), Qt::ThresholdDither)
        .save(&file, "BMP");
    return file.data().mid(fileHeader).toStdString();
}

} // namespace

OdThumbnailImage previewPicture(const DisplayList& list, const QColor& background) {
    OdThumbnailImage result;
    const Box box = list.extents();
    if (box.isEmpty())
        return result;
    PictureOrder order;
    order.list = &list;
    order.view.resize(pictureSize(box));
    order.view.fit(box);
    order.background = background;
    order.budget = PictureOrder::kSmallBudget;
    result.bmp = bitmapOf(LivePicture().finished(order));
    return result;
}

} // namespace standin
