// What is written of drawings that were changed, record by record: the cases have the tags of a drawing and
// the steps that change it.
#include "tests/sdk/dxf/drawing_texts.h"
#include "tests/support/case_file.h"

#include "sdk/db/newer_version.h"
#include "sdk/db/thumbnail.h"

#include <sstream>

namespace {

const char* const kFolder = TEST_DATA_DIR "/written";

OdString wide(const std::string& text) { return OdString(text.c_str(), CP_UTF8); }

OdDbObjectId idOf(OdDbDatabase& drawing, const std::string& handle) {
    return drawing.getOdDbObjectId(OdDbHandle(std::stoull(handle, nullptr, 16)));
}

// One step: a word, then what it is about.
class Step {
public:
    Step(OdDbDatabasePtr& changed, const std::string& line) : drawing(changed), words(line) { words >> verb; }
    void take() {
        if (verb == "line")
            addLine(next() == "paper" ? drawing->getPaperSpaceId() : drawing->getModelSpaceId());
        else if (verb == "layer")
            addRecord<OdDbLayerTableRecord>(drawing->getLayerTableId());
        else if (verb == "block")
            addLine(addRecord<OdDbBlockTableRecord>(drawing->getBlockTableId()));
        else if (verb == "group")
            addGroup();
        else if (verb == "erase" || verb == "revive")
            idOf(*drawing, next()).safeOpenObject(OdDb::kForWrite, true)->erase(verb == "erase");
        else if (verb == "rename")
            rename();
        else if (verb == "number")
            setVariable();
        else if (verb == "preview")
            putPreview();
        else if (verb == "newer")
            drawing = odDbInNewerVersion(*drawing, leftOut);
        else
            ADD_FAILURE() << "no such step: " << verb;
    }

private:
    std::string next() {
        std::string word;
        words >> word;
        return word;
    }
    void addLine(OdDbObjectId block) {
        OdDbLinePtr line(new OdDbLine);
        line->setEndPoint({1, 2, 0});
        odrxCast<OdDbBlockTableRecord>(block.safeOpenObject(OdDb::kForWrite))->appendOdDbEntity(line.get());
    }
    template <class Record> OdDbObjectId addRecord(OdDbObjectId table) {
        OdSmartPtr<Record> record(new Record);
        record->setName(wide(next()));
        return odrxCast<OdDbSymbolTable>(table.safeOpenObject(OdDb::kForWrite))->add(record.get());
    }
    void addGroup() {
        const auto groups =
            odrxCast<OdDbDictionary>(drawing->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
        OdDbGroupPtr group(new OdDbGroup);
        groups->setAt(wide(next()), group.get());
        for (std::string handle = next(); !handle.empty(); handle = next())
            group->append(idOf(*drawing, handle));
    }
    void rename() {
        const auto record =
            odrxCast<OdDbSymbolTableRecord>(idOf(*drawing, next()).safeOpenObject(OdDb::kForWrite));
        record->setName(wide(next()));
    }
    void setVariable() {
        const OdString name = wide(next());
        const OdResBufPtr value = drawing->getSysVar(name)->clone();
        value->setInt32(std::stoi(next()));
        drawing->setSysVar(name, value.get());
    }
    void putPreview() {
        OdThumbnailImage image;
        image.bmp = std::string(static_cast<std::size_t>(std::stoul(next())), '\xA5');
        odDbPutPreviewBitmap(drawing.get(), image);
    }

    OdDbDatabasePtr& drawing;
    std::istringstream words;
    std::string verb;
    std::vector<OdString> leftOut;
};

// A line for each record and each header value, without the times.
std::string recordsOf(const std::string& text) {
    const DxfTagList tags = DxfTagList::parse(text, nullptr, false);
    std::string records;
    bool isTime = false;
    for (const DxfTag& tag : tags) {
        isTime = tag.code == 9 ? tag.value().substr(0, 3) == "$TD" : isTime && tag.code != 0;
        if (isTime && tag.code == 40)
            continue;
        const bool begins = tag.code == 0 || tag.code == 9;
        records += (begins ? (records.empty() ? "" : "\n") : "|") + std::to_string(tag.code) + "=" +
                   std::string(tag.value());
    }
    return records + "\n";
}

std::string written(const Case& given) try {
    OdDbDatabasePtr drawing = given.fields.count("drawing") != 0
                                  ? OdDbDatabase::readBytes(given.tags("drawing"))
                                  : OdDbDatabase::createEmpty();
    const auto steps = given.fields.find("do");
    if (steps != given.fields.end())
        for (const std::string& line : steps->second)
            Step(drawing, line).take();
    return recordsOf(drawing->writeBytes());
} catch (const OdError& error) {
    return "error: " + error.description().toUtf8() + "\n";
}

class Written : public testing::TestWithParam<std::string> {};

TEST_P(Written, IsWhatTheReferenceSays) { checkCases(kFolder, GetParam(), written); }

INSTANTIATE_TEST_SUITE_P(Files, Written, testing::ValuesIn(caseFilesIn(kFolder)),
                         [](const auto& file) { return file.param; });

} // namespace
