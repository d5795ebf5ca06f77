// A process that is killed at any call of a save leaves the old drawing or the new one.
#include "tests/sdk/dxf/drawing_texts.h"
#include "tests/support/kill_at_call.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

OdDbDatabasePtr drawingWithLines(int count) {
    OdDbDatabasePtr database = OdDbDatabase::readBytes(sampleDrawing());
    for (int i = 0; i < count; ++i) {
        OdDbLinePtr line(new OdDbLine);
        modelSpaceOf(*database, OdDb::kForWrite)->appendOdDbEntity(line.get());
    }
    return database;
}

std::string faultOf(const OdString& path, const std::string& before, std::size_t linesAfter) {
    const OdDbDatabasePtr found = OdDbDatabase::readFile(path);
    if (found->writeBytes() == before)
        return "";
    const std::size_t count = modelSpaceOf(*found)->entityIds().size();
    return count == linesAfter
               ? ""
               : "neither the old drawing nor the new one, but " + std::to_string(count) + " entities";
}

} // namespace

TEST(KilledSave, EveryCallLeavesTheOldDrawingOrTheNewOne) {
    QTemporaryDir folder;
    const OdString path = folder.filePath("plan.dxf").toStdWString();
    const OdDbDatabasePtr small = OdDbDatabase::readBytes(sampleDrawing());
    const OdDbDatabasePtr large = drawingWithLines(5000);
    const std::size_t linesBefore = modelSpaceOf(*small)->entityIds().size();
    std::string before;
    int places = 0;
    EXPECT_EQ(testing_kills::faultOfKills(
                  [&] {
                      small->writeFile(path);
                      before = OdDbDatabase::readFile(path)->writeBytes();
                  },
                  [&] { large->writeFile(path); }, [&] { return faultOf(path, before, linesBefore + 5000); },
                  places),
              "");
    EXPECT_GE(places, 6) << "a save writes, syncs and moves";
}

TEST(KilledSave, TheFirstSaveOfADrawingLeavesTheWholeOfItOrNothing) {
    QTemporaryDir folder;
    const QString file = folder.filePath("new.dxf");
    const OdDbDatabasePtr drawing = drawingWithLines(100);
    const std::size_t lines = modelSpaceOf(*drawing)->entityIds().size();
    int places = 0;
    EXPECT_EQ(testing_kills::faultOfKills(
                  [&] { QFile::remove(file); }, [&] { drawing->writeFile(file.toStdWString()); },
                  [&]() -> std::string {
                      return QFile::exists(file) ? faultOf(file.toStdWString(), "", lines) : "";
                  },
                  places),
              "");
    EXPECT_GE(places, 6);
}
