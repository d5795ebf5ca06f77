// Leaders with several lines: the lines with their heads, and the text or the block that they lead from.
#include "sdk/db/block_table.h"
#include "sdk/db/database.h"
#include "sdk/db/spline_curve.h"
#include "standin/display/kinds.h"
#include "standin/display/kinds/arrow.h"
#include "standin/display/kinds/multileader_data.h"
#include "standin/display/text_painting.h"

#include <cmath>

namespace standin {

namespace {

constexpr int kPiecesOfSpan = 24;

// The highest byte tells what kind of colour the number is.
Pencil pencilOf(std::int64_t color, const Pencil& pencil) {
    const std::int64_t kind = color >> 24 & 0xff;
    if (kind == 0xc2)
        return pencil.inked(static_cast<Ink>(color) | 0xff000000u);
    return kind == 0xc3 ? pencil.inked(inkOfIndex(static_cast<int>(color & 0xff))) : pencil;
}

void drawBranch(const MultiLeaderData& data, const MultiLeaderData::Branch& branch, const Pencil& pencil) {
    const OdGePoint3d landing = branch.end + branch.landing.normal() * branch.landingLength;
    const bool hasLanding = branch.hasLanding && data.hasLandings;
    for (std::vector<OdGePoint3d> path : branch.lines) {
        path.push_back(branch.end);
        const bool isCurved = data.lineKind == MultiLeaderData::kCurved;
        pencil.path(isCurved ? odDbCurveThrough(path, kPiecesOfSpan) : path, pencil.world());
        if (data.hasArrows && path.size() > 1)
            drawArrow(path[0], path[1], data.arrowSize, data.normal, pencil);
    }
    if (hasLanding)
        pencil.path({branch.end, landing}, pencil.world());
}

void drawText(const MultiLeaderData& data, const OdString& contents, const Pencil& pencil) {
    OdDbTextFormat format;
    format.height = data.textHeight;
    TextRoom room;
    room.letterHeight = data.textHeight;
    room.width = data.textWidth;
    room.spacing = data.lineSpacing;
    room.column = data.textColumn;
    const double turn = std::atan2(data.textDirection.y, data.textDirection.x);
    const OdGeMatrix3d matrix = pencil.world() * OdGeMatrix3d::translation(data.textPlace.asVector()) *
                                OdGeMatrix3d::rotation(turn, OdGeVector3d::kZAxis);
    drawLaidText(layOut(odDbTextPieces(contents.wide(), format), room), matrix,
                 pencilOf(data.textColor, pencil));
}

void drawBlock(const MultiLeaderData& data, const OdDbEntity& entity, const Pencil& pencil) {
    if (!entity.database())
        return;
    const OdDbObjectId id = entity.database()->getOdDbObjectId(data.block);
    const auto block = odrxQuery<OdDbBlockTableRecord>(id.openObject().get());
    if (!block.isNull())
        pencil.block(id, pencil.world() * OdGeMatrix3d::translation(data.blockPlace.asVector()) *
                             OdGeMatrix3d::planeToWorld(data.normal) *
                             OdGeMatrix3d::rotation(data.blockRotation, OdGeVector3d::kZAxis) *
                             OdGeMatrix3d::scaling(data.blockScale) *
                             OdGeMatrix3d::translation(-block->origin().asVector()));
}

} // namespace

bool draw::canDrawMultiLeader(const OdDbEntity& entity) { return hasMultiLeaderContext(entity.tags()); }

void draw::multiLeader(const OdDbEntity& entity, const Pencil& pencil) {
    const MultiLeaderData data = multiLeaderData(entity.tags());
    if (data.lineKind != MultiLeaderData::kUnseen)
        for (const MultiLeaderData::Branch& branch : data.branches)
            drawBranch(data, branch, pencilOf(data.lineColor, pencil));
    if (data.hasText && data.textHeight > 0)
        drawText(data, entity.decoded(data.text), pencil);
    if (data.hasBlock)
        drawBlock(data, entity, pencil);
}

} // namespace standin
