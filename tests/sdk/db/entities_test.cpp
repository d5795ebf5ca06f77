// What entities say of themselves, number by number: the cases have the tags of entities.
#include "tests/sdk/db/drawing_fixture.h"

#include "sdk/db/block_reference.h"
#include "sdk/db/hatch.h"
#include "sdk/db/leader.h"
#include "sdk/db/polyline.h"
#include "sdk/db/spline.h"
#include "sdk/db/text.h"
#include "tests/support/case_file.h"
#include "tests/support/plain_number.h"

#include <cmath>

namespace {

const char* const kFolder = TEST_DATA_DIR "/entities";

std::string number(double value) { return plainNumber(value, 5); }

std::string place(const OdGePoint3d& point) {
    return number(point.x) + "," + number(point.y) + "," + number(point.z);
}

std::string places(const char* name, const std::vector<OdGePoint3d>& points) {
    std::string words = name;
    for (const OdGePoint3d& point : points)
        words += " " + place(point);
    return words + "\n";
}

std::string hatchInWords(const OdDbHatch& hatch) {
    std::string words = "style " + std::to_string(hatch.style()) + (hatch.isSolidFill() ? " solid" : "") +
                        " " + hatch.patternName().toUtf8() + "\n";
    for (const OdDbHatch::Loop& loop : hatch.loops())
        words += places("loop", loop);
    for (const OdDbHatch::PatternLines& lines : hatch.patternLines()) {
        words += "lines at " + number(lines.angle) + " from " + place(lines.base) + " by " +
                 place(OdGePoint3d() + lines.offset);
        for (const double dash : lines.dashes)
            words += " " + number(dash);
        words += "\n";
    }
    return words;
}

std::string polylineInWords(const OdDbPolylineBase& line) {
    std::string words = line.isClosed() ? "closed\n" : "open\n";
    if (line.constantWidth() != 0)
        words += "width " + number(line.constantWidth()) + "\n";
    for (const OdDbPolylineVertex& vertex : line.vertices())
        words += "vertex " + place(vertex.point) + " bulge " + number(vertex.bulge) + " widths " +
                 number(vertex.startWidth) + " " + number(vertex.endWidth) + "\n";
    return words + "stands at " + place(line.vertexToWorld() * OdGePoint3d(1, 2, 3)) + "\n";
}

std::string referenceInWords(const OdDbBlockReference& reference) {
    return "cell " + place(reference.blockTransform(1, 2) * OdGePoint3d(1, 2, 3)) + "\n";
}

std::string columnsInWords(const OdDbMText& text) {
    const OdDbMText::Columns columns = text.columns();
    std::string words = "columns " + std::to_string(columns.count) + " of " + number(columns.width) +
                        " and " + number(columns.gutter) + ", " + number(columns.height) + " high";
    for (const double height : columns.heights)
        words += " " + number(height);
    return words + "\n'" + text.plainText().toUtf8() + "'\n";
}

std::string inWords(const OdDbEntity& entity) {
    std::string words = entity.tags().empty() ? "?" : std::string(entity.tags()[0].value());
    OdGeExtents3d box;
    words += entity.getGeomExtents(box) == eOk
                 ? " from " + place(box.minPoint()) + " to " + place(box.maxPoint()) + "\n"
                 : " without a size\n";
    if (const auto* hatch = dynamic_cast<const OdDbHatch*>(&entity))
        words += hatchInWords(*hatch);
    if (const auto* line = dynamic_cast<const OdDbPolylineBase*>(&entity))
        words += polylineInWords(*line);
    if (const auto* spline = dynamic_cast<const OdDbSpline*>(&entity))
        words += std::string(spline->isClosed() ? "closed" : "open") + places(" path", spline->path(2));
    if (const auto* leader = dynamic_cast<const OdDbLeader*>(&entity))
        words += "arrow " + number(leader->hasArrowHead() ? leader->arrowSize() : 0) + "\n";
    if (const auto* reference = dynamic_cast<const OdDbBlockReference*>(&entity))
        words += referenceInWords(*reference);
    if (const auto* text = dynamic_cast<const OdDbMText*>(&entity))
        words += columnsInWords(*text);
    return words;
}

std::string section(const char* name, const std::string& tags) {
    return "0\nSECTION\n2\n" + std::string(name) + "\n" + tags + "0\nENDSEC\n";
}

std::string entitiesOf(const Case& given) try {
    const OdDbDatabasePtr drawing = OdDbDatabase::readBytes(
        section("HEADER", "9\n$ACADVER\n1\nAC1015\n") + section("TABLES", given.tags("tables")) +
        section("BLOCKS", given.tags("blocks")) + section("ENTITIES", given.tags("entities")) + "0\nEOF\n");
    const auto space = odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject());
    std::string words;
    for (const OdDbObjectId& id : space->entityIds())
        words += inWords(*odrxCast<OdDbEntity>(id.safeOpenObject()));
    return words;
} catch (const OdError& error) {
    return "error: " + error.description().toUtf8() + "\n";
}

class Entities : public testing::TestWithParam<std::string> {};

TEST_P(Entities, SayWhatTheReferenceSays) { checkCases(kFolder, GetParam(), entitiesOf); }

INSTANTIATE_TEST_SUITE_P(Files, Entities, testing::ValuesIn(caseFilesIn(kFolder)),
                         [](const auto& file) { return file.param; });

} // namespace
