// The summary record, where each version keeps it, and what a save writes into it.
#include "tests/sdk/db/drawing_fixture.h"

#include "sdk/db/save_stamp.h"
#include "sdk/db/summary_info.h"

#include <QTemporaryDir>
#include <chrono>

namespace {

OdDbDatabasePtr drawingOf(const char* version) {
    std::string text = OdDbDatabase::createEmpty()->writeBytes();
    text.replace(text.find("AC1027"), 6, version);
    return OdDbDatabase::readBytes(text);
}

// Dates are kept to the millisecond: until then no editing time is to be seen.
void editForAMoment(const OdDbDatabase& database) {
    const double before = database.getTDINDWG().asJulianFraction();
    while (database.getTDINDWG().asJulianFraction() <= before) {
    }
}

OdDbDatabasePtr again(OdDbDatabase& database) { return OdDbDatabase::readBytes(database.writeBytes()); }

using Entries = OdDbDatabaseSummaryInfo::CustomEntries;

} // namespace

class Summary : public testing::TestWithParam<const char*> {};

TEST_P(Summary, EveryFieldSurvivesSavingAndReading) {
    const OdDbDatabasePtr database = drawingOf(GetParam());
    auto info = oddbGetSummaryInfo(database.get());
    info->setTitle(L"Title \u00fc");
    info->setSubject(L"Subject");
    info->setAuthor(L"Author");
    info->setKeywords(L"Keywords");
    info->setComments(L"two\nlines ^J");
    info->setHyperlinkBase(L"http://example.org/?a=b");
    info->setCustomSummaryInfo(5, L"key", L"value=with=signs");
    info->setCustomSummaryInfo(5, L"key", L"\u4e16");
    oddbPutSummaryInfo(info.get());
    const OdDbDatabasePtr read = again(*database);
    info = oddbGetSummaryInfo(read.get());
    EXPECT_EQ(info->getTitle(), OdString(L"Title \u00fc"));
    EXPECT_EQ(info->getSubject(), OdString(L"Subject"));
    EXPECT_EQ(info->getAuthor(), OdString(L"Author"));
    EXPECT_EQ(info->getKeywords(), OdString(L"Keywords"));
    EXPECT_EQ(info->getComments(), OdString(L"two\nlines ^J"));
    EXPECT_EQ(info->getHyperlinkBase(), OdString(L"http://example.org/?a=b"));
    EXPECT_EQ(info->custom, (Entries{{L"key", L"value=with=signs"}, {L"key", L"\u4e16"}}));
    EXPECT_EQ(info->database(), read.get());
}

TEST_P(Summary, PropertiesWithoutANameAreKeptWhereTheyAreAndNotHandedOut) {
    const OdDbDatabasePtr database = drawingOf(GetParam());
    auto info = oddbGetSummaryInfo(database.get());
    for (const auto& [name, value] :
         Entries{{L"", L"0"}, {L"a", L"1"}, {L"", L"2"}, {L"b", L"3"}, {L"", L"4"}})
        info->setCustomSummaryInfo(9, name, value);
    oddbPutSummaryInfo(info.get());
    const std::string written = database->writeBytes();
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(written);
    info = oddbGetSummaryInfo(read.get());
    EXPECT_EQ(info->custom, (Entries{{L"a", L"1"}, {L"b", L"3"}}));
    oddbPutSummaryInfo(info.get());
    EXPECT_EQ(read->writeBytes(), written) << "nothing was changed";
    info->setCustomSummaryInfo(2, L"c", L"5");
    oddbPutSummaryInfo(info.get());
    info->deleteCustomSummaryInfo(0);
    info->deleteCustomSummaryInfo(0);
    info->deleteCustomSummaryInfo(0);
    oddbPutSummaryInfo(info.get());
    info = oddbGetSummaryInfo(again(*read).get());
    EXPECT_EQ(info->numCustomInfo(), 0);
    ASSERT_EQ(info->nameless.size(), 3u);
    EXPECT_EQ(info->nameless[0].value, OdString(L"0"));
    EXPECT_EQ(info->nameless[2].value, OdString(L"4"));
}

TEST_P(Summary, AbortTakesTheRecordBack) {
    const OdDbDatabasePtr database = drawingOf(GetParam());
    const std::string before = database->writeBytes();
    database->startTransaction();
    const auto info = oddbGetSummaryInfo(database.get());
    info->setTitle(L"Title");
    info->setCustomSummaryInfo(0, L"key", L"value");
    oddbPutSummaryInfo(info.get());
    EXPECT_NE(database->writeBytes(), before);
    database->abortTransaction();
    EXPECT_EQ(oddbGetSummaryInfo(database.get())->getTitle(), OdString());
    EXPECT_EQ(oddbGetSummaryInfo(database.get())->numCustomInfo(), 0);
    EXPECT_FALSE(database->isModified());
    EXPECT_EQ(database->writeBytes(), before) << "no variable, record or entry is left behind";
}

// A save between changes is no step: it can't be undone, and what was undone can still be done again.
TEST_P(Summary, SavingLeavesNoStep) {
    const QTemporaryDir folder;
    const OdString path = folder.filePath("drawing.dxf").toStdWString();
    const OdDbDatabasePtr database = drawingOf(GetParam());
    const auto setTitle = [&](const wchar_t* title) {
        const auto info = oddbGetSummaryInfo(database.get());
        database->startUndoRecord();
        info->setTitle(title);
        oddbPutSummaryInfo(info.get());
    };
    const auto title = [&] { return oddbGetSummaryInfo(database.get())->getTitle(); };
    setTitle(L"One");
    setTitle(L"Two");
    ASSERT_TRUE(database->undo());
    database->writeFile(path);
    EXPECT_EQ(oddbGetSummaryInfo(OdDbDatabase::readFile(path).get())->getRevisionNumber(), OdString(L"1"));
    EXPECT_FALSE(database->isModified());
    EXPECT_TRUE(database->redo()) << "saving has changed nothing";
    EXPECT_EQ(title(), OdString(L"Two"));
    EXPECT_TRUE(database->undo());
    EXPECT_EQ(title(), OdString(L"One"));
    EXPECT_TRUE(database->undo());
    EXPECT_EQ(title(), OdString());
    EXPECT_FALSE(database->undo()) << "a step of the save's own";
}

TEST_P(Summary, UndoneFieldsStandAsTheFileHasThem) {
    OdDbDatabasePtr database = drawingOf(GetParam());
    auto info = oddbGetSummaryInfo(database.get());
    info->setTitle(L"Title");
    info->setCustomSummaryInfo(0, L"key", L"value");
    oddbPutSummaryInfo(info.get());
    std::string text = database->writeBytes();
    text.replace(text.find("Title\n"), 5, "Title \\U+0041"); // another spelling than ours
    database = OdDbDatabase::readBytes(text);
    database->startUndoRecord();
    info = oddbGetSummaryInfo(database.get());
    info->setTitle(L"Other");
    info->setAuthor(L"Author");
    info->deleteCustomSummaryInfo(0);
    oddbPutSummaryInfo(info.get());
    const std::string changed = database->writeBytes();
    EXPECT_NE(changed, text);
    database->undo();
    EXPECT_EQ(database->writeBytes(), text);
    database->redo();
    EXPECT_EQ(database->writeBytes(), changed);
}

INSTANTIATE_TEST_SUITE_P(Versions, Summary,
                         testing::Values("AC1009", "AC1012", "AC1014", "AC1015", "AC1018", "AC1021", "AC1024",
                                         "AC1027", "AC1032"),
                         [](const auto& version) { return std::string(version.param); });

TEST(SummaryRecord, OlderVersionKeepsItInItsDictionary) {
    const OdDbDatabasePtr database = drawingOf("AC1015");
    const auto info = oddbGetSummaryInfo(database.get());
    info->setTitle(L"Title");
    oddbPutSummaryInfo(info.get());
    EXPECT_NE(database->writeBytes().find("DWGPROPS COOKIE"), std::string::npos);
    EXPECT_EQ(database->writeBytes().find("$TITLE"), std::string::npos);
}

TEST(SummaryRecord, PuttingItBackUnchangedChangesNothing) {
    const OdDbDatabasePtr database = drawingOf("AC1032");
    oddbPutSummaryInfo(oddbGetSummaryInfo(database.get()).get());
    EXPECT_FALSE(database->isModified());
}

TEST(SummaryRecord, EntriesAreReachedByIndexAndMadeBehindTheEnd) {
    OdDbDatabaseSummaryInfoPtr info = oddbGetSummaryInfo(nullptr);
    OdString key, value;
    EXPECT_THROW(info->getCustomSummaryInfo(0, key, value), OdError_InvalidIndex);
    EXPECT_THROW(info->deleteCustomSummaryInfo(0), OdError_InvalidIndex);
    info->setCustomSummaryInfo(7, L"a", L"1");
    info->setCustomSummaryInfo(1, L"b", L"2");
    info->setCustomSummaryInfo(0, L"c", L"3");
    EXPECT_EQ(info->custom, (Entries{{L"c", L"3"}, {L"b", L"2"}}));
    info->deleteCustomSummaryInfo(0);
    info->getCustomSummaryInfo(0, key, value);
    EXPECT_EQ(key, OdString(L"b"));
    EXPECT_EQ(codeOf([&] { oddbPutSummaryInfo(info.get()); }), eNotInDatabase);
}

TEST(SummaryRecord, SavingAChangedDrawingAdvancesItsRevision) {
    QTemporaryDir folder;
    const OdString path = folder.filePath("plan.dxf").toStdWString();
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    const OdDbDate created = database->getTDCREATE();
    for (int save = 1; save <= 2; ++save) {
        addLine(*database, save);
        editForAMoment(*database);
        database->writeFile(path);
        EXPECT_FALSE(database->isModified());
    }
    const OdDbDatabasePtr read = OdDbDatabase::readFile(path);
    EXPECT_EQ(oddbGetSummaryInfo(read.get())->getRevisionNumber(), OdString(L"2"));
    EXPECT_FALSE(oddbGetSummaryInfo(read.get())->getLastSavedBy().isEmpty());
    EXPECT_GT(read->getTDINDWG().asJulianFraction(), 0);
    EXPECT_EQ(read->getTDCREATE(), created);
    EXPECT_EQ(read->getFilename(), path);
}

TEST(SummaryRecord, SavingAnUnchangedDrawingAdvancesNothing) {
    QTemporaryDir folder;
    const OdString path = folder.filePath("plan.dxf").toStdWString();
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    addLine(*database, 1);
    database->writeFile(path);
    const std::string bytes = database->writeBytes();
    database->writeFile(path);
    EXPECT_EQ(OdDbDatabase::readFile(path)->writeBytes(), bytes);
}

TEST(SummaryRecord, ManyQuickSavesLoseNoEditingTime) {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    const auto start = std::chrono::steady_clock::now();
    double elapsed = 0;
    while (elapsed < 20) {
        odDbStampSave(*database);
        elapsed = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    }
    EXPECT_GT(database->getTDINDWG().asJulianFraction() * 86400000, elapsed - 1);
}

// Values that are set meanwhile, and are no steps, stay where they are.
TEST(SummaryHeader, UndoingLeavesOtherHeaderValuesAlone) {
    const OdDbDatabasePtr database = drawingOf("AC1018");
    const auto info = oddbGetSummaryInfo(database.get());
    info->setTitle(L"Title");
    info->setCustomSummaryInfo(0, L"key", L"value");
    oddbPutSummaryInfo(info.get());
    database->setINSUNITS(OdDb::kUnitsMeters);
    setCurrentUCS(database.get(), {1, 2, 3}, {1, 0, 0}, {0, 1, 0});
    database->undo();
    EXPECT_EQ(database->getINSUNITS(), OdDb::kUnitsMeters);
    EXPECT_EQ(get_UCSORG(database.get()), OdGePoint3d(1, 2, 3));
    EXPECT_EQ(database->writeBytes().find("$TITLE"), std::string::npos);
    EXPECT_EQ(database->writeBytes().find("$CUSTOMPROPERTY"), std::string::npos);
}

TEST(SummaryHeader, ADrawingWithoutAHeaderHasNoneAfterUndoingEither) {
    const std::string text = "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n";
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const auto info = oddbGetSummaryInfo(database.get());
    info->setTitle(L"Title");
    oddbPutSummaryInfo(info.get());
    EXPECT_NE(database->writeBytes(), text);
    database->undo();
    EXPECT_EQ(database->writeBytes(), text);
}
