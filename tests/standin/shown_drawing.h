// Drawings made of a few records, what is shown of them, and the picture of it.
#pragma once

#include "sdk/db/block_table.h"
#include "standin/display/display_list.h"
#include "standin/display/live_picture.h"

#include <string>
#include <vector>

namespace shown {

inline std::string head(const char* name, const char* marker, const std::string& common = "8\n0\n") {
    return std::string("0\n") + name + "\n100\nAcDbEntity\n" + common + "100\n" + marker + "\n";
}
inline std::string point(int code, double x, double y) {
    return std::to_string(code) + "\n" + std::to_string(x) + "\n" + std::to_string(code + 10) + "\n" +
           std::to_string(y) + "\n";
}

inline std::string layers() {
    return "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n100\nAcDbSymbolTableRecord\n100\n"
           "AcDbLayerTableRecord\n2\nRed\n70\n0\n62\n1\n6\nCONTINUOUS\n0\nENDTAB\n0\nENDSEC\n";
}

struct Drawing {
    // `sections` are those between the layers and the entities, `variables` those of the header.
    explicit Drawing(const std::string& entities, const std::string& sections = {},
                     const std::string& variables = {}, const std::string& behind = {})
        : list(OdDbDatabase::readBytes("0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n" + variables +
                                       "0\nENDSEC\n" + layers() + sections + "0\nSECTION\n2\nENTITIES\n" +
                                       entities + "0\nENDSEC\n" + behind + "0\nEOF\n")) {
        list.refresh();
        items = list.within({-1e15, -1e15, 1e15, 1e15});
    }
    const standin::Shape& shape(std::size_t number = 0) const { return items.at(0)->shapes.at(number); }
    standin::DisplayList list;
    std::vector<const standin::Item*> items;
};

// The drawing on a black screen of 100 by 100 pixels; pixels are looked at by their place in the drawing.
class Screen {
public:
    Screen(const Drawing& drawing, const standin::Box& box) {
        standin::PictureOrder order;
        order.list = &drawing.list;
        order.view.resize({100, 100});
        order.view.fit(box);
        view = order.view;
        image = standin::LivePicture().finished(order);
    }
    QColor at(double x, double y) const { return image.pixelColor(view.toPixel({x, y}).toPoint()); }
    int grey(double x, double y) const { return qGray(at(x, y).rgb()); }

private:
    standin::View view;
    QImage image;
};

// A block with these entities, as the section of blocks.
inline std::string blockOf(const char* name, const std::string& entities) {
    return std::string("0\nBLOCK\n8\n0\n2\n") + name + "\n70\n0\n10\n0\n20\n0\n30\n0\n" + entities +
           "0\nENDBLK\n8\n0\n";
}
inline std::string blocks(const std::string& all) { return "0\nSECTION\n2\nBLOCKS\n" + all + "0\nENDSEC\n"; }
inline std::string variable(const char* name, int code, const std::string& value) {
    return std::string("9\n$") + name + "\n" + std::to_string(code) + "\n" + value + "\n";
}

} // namespace shown
