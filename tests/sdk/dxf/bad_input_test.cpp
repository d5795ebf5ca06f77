// Files that are cut off, damaged or no drawings at all: an error with line and reason, or a drawing; never a
// crash.
#include "tests/sdk/dxf/drawing_texts.h"
#include "tests/sdk/dxf/reading_contract.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cmath>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

OdResult codeOfFile(const QString& path) {
    try {
        OdDbDatabase::readFile(path.toStdWString());
    } catch (const OdError& error) {
        return error.code();
    }
    return eOk;
}

std::string textOf(const OdError& error) { return error.description().toUtf8(); }

void expectNoHarm(const std::string& text) { EXPECT_EQ(faultOfReading(text), "") << text; }

// While it lives, no file of this process grows beyond `bytes`.
class SmallFilesOnly {
public:
    explicit SmallFilesOnly(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &former);
        const rlimit small{bytes, former.rlim_max};
        formerHandler = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFilesOnly() {
        setrlimit(RLIMIT_FSIZE, &former);
        std::signal(SIGXFSZ, formerHandler);
    }
    SmallFilesOnly(const SmallFilesOnly&) = delete;
    SmallFilesOnly& operator=(const SmallFilesOnly&) = delete;

private:
    rlimit former{};
    void (*formerHandler)(int) = nullptr;
};

} // namespace

TEST(BadInput, FilesThatAreNoDrawings) {
    EXPECT_EQ(errorOf("").code(), eInvalidDrawing);
    EXPECT_EQ(errorOf(" \n\n").code(), eInvalidDrawing);
    EXPECT_EQ(errorOf("AC1032\0\0\0\0\x01binary").code(), eUnsupportedFileFormat);
    EXPECT_EQ(errorOf("%PDF-1.4\n").code(), eBadDwgFile);
    EXPECT_EQ(errorOf(std::string(1000, '\0')).code(), eBadDwgFile);
}

TEST(BadInput, FilesThatCannotBeOpened) {
    QTemporaryDir folder;
    EXPECT_EQ(codeOfFile(folder.filePath("missing.dxf")), eCantOpenFile);
    EXPECT_EQ(codeOfFile(folder.path()), eCantOpenFile);
}

TEST(BadInput, ContentDecidesAndNotTheName) {
    QTemporaryDir folder;
    QFile file(folder.filePath("text.dwg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(oldDrawing().c_str());
    file.close();
    EXPECT_EQ(codeOfFile(file.fileName()), eOk);
}

TEST(BadInput, NewerVersionIsNotSupported) {
    const OdError error = errorOf(replaced(oldDrawing(), "AC1009", "AC1099"));
    EXPECT_EQ(error.code(), eUnsupportedFileFormat);
    EXPECT_NE(textOf(error).find("AC1099"), std::string::npos);
}

TEST(BadInput, ErrorsNameTheLineAndTheReason) {
    EXPECT_EQ(textOf(errorOf("  0\nSECTION\n  2\nHEADER\n  9\n$X\nfoo\nbar\n")),
              "test.dxf, line 7: a group code was expected");
    EXPECT_EQ(textOf(errorOf("  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n 8\n0\n")),
              "test.dxf, line 9: the file ends before its end mark");
    EXPECT_EQ(textOf(errorOf("  0\nLINE\n  8\n0\n  0\nEOF\n")),
              "test.dxf, line 1: a record outside of the sections");
    EXPECT_EQ(
        textOf(errorOf("  0\nSECTION\n  2\nENTITIES\n  0\nSECTION\n  2\nBLOCKS\n  0\nENDSEC\n  0\nEOF\n")),
        "test.dxf, line 5: a section within a section");
    EXPECT_EQ(textOf(errorOf(replaced(oldDrawing(), "  0\nENDBLK\n  8\n0\n", ""))),
              "test.dxf, line 67: a block without an end");
    EXPECT_EQ(textOf(errorOf(replaced(oldDrawing(), "  0\nENDTAB\n", ""))),
              "test.dxf, line 35: a table without an end");
}

TEST(BadInput, TruncationAnywhereDoesNoHarm) {
    for (const std::string& text : {oldDrawing(), sampleDrawing()})
        for (std::size_t size = 0; size < text.size(); size += 64)
            expectNoHarm(text.substr(0, size));
}

TEST(BadInput, EveryDamagedLineDoesNoHarm) {
    const std::string text = oldDrawing();
    for (const std::string& damage :
         {std::string("?"), std::string("-1"), std::string("99999"), std::string(), std::string(1, '\0'),
          std::string("0"), std::string("nan")}) {
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t end = text.find('\n', start);
            expectNoHarm(text.substr(0, start) + damage + text.substr(end));
            expectNoHarm(text.substr(0, start) + text.substr(end + 1));
            start = end + 1;
        }
    }
}

TEST(BadInput, EveryDamagedLineOfANewDrawingDoesNoHarm) {
    const std::string text = sampleDrawing();
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start);
        expectNoHarm(text.substr(0, start) + "FFFFFFFFFFFFFFFF" + text.substr(end));
        expectNoHarm(text.substr(0, start) + text.substr(end + 1));
        start = end + 1;
    }
}

TEST(BadInput, DuplicateAndDanglingHandlesGiveAWarningAndNoLoss) {
    std::string text = sampleDrawing();
    const OdDbDatabasePtr whole = OdDbDatabase::readBytes(text);
    const OdDbObjectIdArray ids = modelSpaceOf(*whole)->entityIds();
    const std::string first = "  5\n" + ids[0].getHandle().ascii().toUtf8() + "\n";
    const std::string second = "  5\n" + ids[1].getHandle().ascii().toUtf8() + "\n";
    text = replaced(text, second, first);
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    ASSERT_EQ(database->readWarnings().size(), 1u);
    EXPECT_NE(database->readWarnings()[0].toUtf8().find("handle of another one"), std::string::npos);
    EXPECT_EQ(modelSpaceOf(*database)->entityIds().size(), 3u);
    const auto groups = odrxCast<OdDbDictionary>(database->getGroupDictionaryId().safeOpenObject());
    EXPECT_EQ(odrxCast<OdDbGroup>(groups->getAt(L"G", OdDb::kForRead))->numEntities(), 2u);
    EXPECT_EQ(database->writeBytes(), text);
}

TEST(BadInput, BlocksThatContainThemselvesEnd) {
    const std::string insert = "  0\nINSERT\n  8\n0\n  2\nPART\n 10\n0.0\n 20\n0.0\n";
    const OdDbDatabasePtr database =
        OdDbDatabase::readBytes(replaced(oldDrawing(), "  0\nCIRCLE\n", insert + "  0\nCIRCLE\n"));
    EXPECT_TRUE(modelSpaceOf(*database)->extents().isValidExtents());
}

TEST(BadInput, DeeplyNestedInsertsAreMeasuredAtOnce) {
    std::string blocks;
    for (int level = 0; level < 64; ++level) {
        const std::string own = "B" + std::to_string(level), inner = "B" + std::to_string(level + 1);
        blocks += "  0\nBLOCK\n  8\n0\n  2\n" + own + "\n 70\n0\n 10\n0.0\n 20\n0.0\n";
        for (int i = 0; i < 64; ++i)
            blocks += "  0\nINSERT\n  8\n0\n  2\n" + inner + "\n 10\n" + std::to_string(i) + ".0\n 20\n0.0\n";
        blocks += "  0\nENDBLK\n  8\n0\n";
    }
    blocks +=
        "  0\nBLOCK\n  8\n0\n  2\nB64\n 70\n0\n 10\n0.0\n 20\n0.0\n  0\nPOINT\n  8\n0\n 10\n0.0\n 20\n0.0\n"
        "  0\nENDBLK\n  8\n0\n";
    std::string text = replaced(oldDrawing(), "  0\nBLOCK\n", blocks + "  0\nBLOCK\n");
    text = replaced(text, "  2\npart\n", "  2\nB0\n");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    EXPECT_NEAR(modelSpaceOf(*database)->extents().maxPoint().x, 10 + 2 * 64 * 63, 1e-6);
}

TEST(BadInput, CoordinatesThatAreNoNumbersCoverNothing) {
    const std::string text = replaced(oldDrawing(), " 11\n3.0\n", " 11\nnan\n");
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    const OdGeExtents3d box = modelSpaceOf(*database)->extents();
    EXPECT_TRUE(std::isfinite(box.maxPoint().x));
}

TEST(BadInput, RefusedFilesAreLeftAlone) {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    try {
        database->writeFile(L"/nonexistent/folder/x.dxf");
        FAIL() << "written into a folder that is not there";
    } catch (const OdError& error) {
        EXPECT_EQ(error.code(), eFileWriteError);
        EXPECT_NE(textOf(error).find("x.dxf"), std::string::npos);
    }
}

// A limit on the size of files stands for the full disk: writing fails in the same way.
TEST(BadInput, FullDiskLeavesTheOldFile) {
    QTemporaryDir folder;
    const QString path = folder.filePath("plan.dxf");
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    database->writeFile(path.toStdWString());
    const std::string before = database->writeBytes();
    OdDbLinePtr line(new OdDbLine);
    modelSpaceOf(*database, OdDb::kForWrite)->appendOdDbEntity(line.get());
    {
        const SmallFilesOnly limit(1024);
        EXPECT_THROW(database->writeFile(path.toStdWString()), OdError);
    }
    EXPECT_EQ(OdDbDatabase::readFile(path.toStdWString())->writeBytes(), before);
    EXPECT_TRUE(database->isModified());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("plan.dxf"));
}

TEST(BadInput, OnlyRegularFilesAreReplaced) {
    QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe.dxf");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    EXPECT_THROW(OdDbDatabase::createEmpty()->writeFile(pipe.toStdWString()), OdError);
    EXPECT_THROW(OdDbDatabase::createEmpty()->writeFile(folder.path().toStdWString()), OdError);
    EXPECT_FALSE(QFileInfo(pipe).isFile());
}

TEST(BadInput, FileThatChangesWhileOpenDoesNoHarm) {
    QTemporaryDir folder;
    const QString path = folder.filePath("plan.dxf");
    OdDbDatabase::createEmpty()->writeFile(path.toStdWString());
    const OdDbDatabasePtr database = OdDbDatabase::readFile(path.toStdWString());
    const std::string before = database->writeBytes();
    QFile file(path);
    ASSERT_TRUE(file.resize(10));
    EXPECT_EQ(database->writeBytes(), before);
}
