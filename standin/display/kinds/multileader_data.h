// What the nested lists of a multiple leader say about how it looks.
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/dxf/tag_list.h"

#include <string_view>
#include <vector>

namespace standin {

struct MultiLeaderData {
    enum LineKind { kUnseen = 0, kStraight = 1, kCurved = 2 };
    // Lines that come together at one end.
    struct Branch {
        OdGePoint3d end;
        OdGeVector3d landing{1, 0, 0}; // the direction in which the end goes on to the text
        double landingLength = 0;
        bool hasLanding = false;
        std::vector<std::vector<OdGePoint3d>> lines{}; // what they point at first, without the end
    };

    std::vector<Branch> branches;
    int lineKind = kStraight;
    bool hasLandings = true, hasArrows = true;
    double arrowSize = 0;
    std::int64_t lineColor = 0, textColor = 0; // as numbers of the file
    OdGeVector3d normal{0, 0, 1};

    bool hasText = false, hasBlock = false;
    std::string_view text; // as in the file
    OdGePoint3d textPlace;
    OdGeVector3d textDirection{1, 0, 0};
    double textHeight = 0, textWidth = 0, lineSpacing = 1;
    int textColumn = 0; // 0 left, 1 centre, 2 right

    OdDbHandle block;
    OdGePoint3d blockPlace;
    OdGeScale3d blockScale;
    double blockRotation = 0; // radians
};

// Without it there is nothing to show.
bool hasMultiLeaderContext(const DxfTagList& tags);
MultiLeaderData multiLeaderData(const DxfTagList& tags);

} // namespace standin
