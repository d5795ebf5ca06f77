// Pictures of small drawings, pixel by pixel, by the painter and by the sketch: the cases have the sections
// of a drawing and the view ("left bottom right top scale"), and maybe a pen ("width colour") and a
// background. A letter stands for a colour, a digit for another one by its brightness, a dot for nothing.
#include "standin/display/item_painter.h"
#include "standin/display/sketch.h"
#include "tests/standin/shown_drawing.h"
#include "tests/support/case_file.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

using namespace standin;

const char* const kFolder = TEST_DATA_DIR "/painted";

char letterOf(QRgb pixel, QRgb ground) {
    if (pixel == ground)
        return '.';
    static const std::pair<QRgb, char> letters[] = {{0xffffff, 'W'}, {0xff0000, 'R'}, {0x00ff00, 'G'},
                                                    {0x0000ff, 'B'}, {0xffff00, 'Y'}, {0x00ffff, 'C'},
                                                    {0xff00ff, 'M'}, {0x000000, 'K'}};
    for (const auto& [color, letter] : letters)
        if ((pixel & 0xffffffu) == color)
            return letter;
    return static_cast<char>('0' + qGray(pixel) * 9 / 255);
}

std::string inLetters(const QImage& image, const QColor& ground) {
    std::string text;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            text += letterOf(image.pixel(x, y) | 0xff000000u, ground.rgb());
        text += '\n';
    }
    return text;
}

QStringList wordsOf(const Case& given, const char* field) {
    const auto found = given.fields.find(field);
    return found == given.fields.end() ? QStringList()
                                       : QString::fromStdString(found->second[0]).split(QLatin1Char(' '));
}

PictureOrder orderOf(const Case& given) {
    PictureOrder order;
    const QStringList view = wordsOf(given, "view"), pen = wordsOf(given, "pen");
    order.view = View::of({view[0].toDouble(), view[1].toDouble(), view[2].toDouble(), view[3].toDouble()},
                          view[4].toDouble(), 0);
    if (given.fields.count("background") != 0)
        order.background = QColor(wordsOf(given, "background")[0]);
    if (!pen.isEmpty())
        order.pen = QPen(QColor(pen[1]), pen[0].toDouble(), Qt::SolidLine, Qt::RoundCap);
    return order;
}

std::string section(const char* name, const std::string& tags) {
    return tags.empty() ? "" : "0\nSECTION\n2\n" + std::string(name) + "\n" + tags + "0\nENDSEC\n";
}

std::string painted(const shown::Drawing& drawing, const PictureOrder& order, bool smooth) {
    QImage image(order.view.size(), QImage::Format_RGB32);
    image.fill(order.background);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, smooth);
        ItemPainter items(painter, order.view, order.foreground());
        if (order.pen)
            items.setPen(*order.pen);
        for (const Item* item : drawing.items)
            items.draw(*item);
    }
    return inLetters(image, order.background);
}

std::string sketched(const PictureOrder& order) {
    QImage image(order.view.size(), QImage::Format_RGB32);
    image.fill(order.background);
    Sketch(image, order, {}).draw();
    return inLetters(image, order.background);
}

std::string picturesOf(const Case& given) {
    const shown::Drawing drawing(given.tags("entities"), section("TABLES", given.tags("tables")),
                                 given.tags("variables"));
    PictureOrder order = orderOf(given);
    order.list = &drawing.list;
    const std::string exact = painted(drawing, order, given.fields.count("smooth") != 0);
    return given.fields.count("painter") != 0 ? exact : exact + "~ sketched\n" + sketched(order);
}

class Painted : public testing::TestWithParam<std::string> {};

TEST_P(Painted, IsThePictureOfTheReference) { checkCases(kFolder, GetParam(), picturesOf); }

INSTANTIATE_TEST_SUITE_P(Files, Painted, testing::ValuesIn(caseFilesIn(kFolder)),
                         [](const auto& file) { return file.param; });

} // namespace
