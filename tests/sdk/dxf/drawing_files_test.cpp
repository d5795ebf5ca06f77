// Drawings and the file system: what can't be read or written, and files that change behind a drawing's back.
#include "tests/sdk/dxf/drawing_texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>
#include <sys/fsuid.h>
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

// While it lives, files are opened with the rights of a user who has none; root's own rights stand above all.
class AsNobody {
public:
    AsNobody() : former(setfsuid(nobody)) {}
    ~AsNobody() { setfsuid(static_cast<uid_t>(former)); }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

private:
    static constexpr uid_t nobody = 65534;
    int former;
};

std::string textOf(const OdError& error) { return error.description().toUtf8(); }

OdString pathIn(const QTemporaryDir& folder) { return folder.filePath("plan.dxf").toStdWString(); }

void addLineTo(OdDbDatabase& database) {
    OdDbLinePtr line(new OdDbLine);
    modelSpaceOf(database, OdDb::kForWrite)->appendOdDbEntity(line.get());
}

} // namespace

TEST(DrawingFiles, FilesThatCannotBeOpened) {
    QTemporaryDir folder;
    EXPECT_EQ(codeOfFile(folder.filePath("missing.dxf")), eCantOpenFile);
    EXPECT_EQ(codeOfFile(folder.path()), eCantOpenFile);
}

TEST(DrawingFiles, ContentDecidesAndNotTheName) {
    QTemporaryDir folder;
    QFile file(folder.filePath("text.dwg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(oldDrawing().c_str());
    file.close();
    EXPECT_EQ(codeOfFile(file.fileName()), eOk);
}

TEST(DrawingFiles, RefusedFilesAreLeftAlone) {
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
TEST(DrawingFiles, FullDiskLeavesTheOldFile) {
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

TEST(DrawingFiles, OnlyRegularFilesAreReplaced) {
    QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe.dxf");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    EXPECT_THROW(OdDbDatabase::createEmpty()->writeFile(pipe.toStdWString()), OdError);
    EXPECT_THROW(OdDbDatabase::createEmpty()->writeFile(folder.path().toStdWString()), OdError);
    EXPECT_FALSE(QFileInfo(pipe).isFile());
}

TEST(DrawingFiles, FileThatChangesWhileOpenDoesNoHarm) {
    QTemporaryDir folder;
    const QString path = folder.filePath("plan.dxf");
    OdDbDatabase::createEmpty()->writeFile(path.toStdWString());
    const OdDbDatabasePtr database = OdDbDatabase::readFile(path.toStdWString());
    const std::string before = database->writeBytes();
    QFile file(path);
    ASSERT_TRUE(file.resize(10));
    EXPECT_EQ(database->writeBytes(), before);
}

TEST(DrawingFiles, PipeIsNotWaitedFor) {
    QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe.dxf");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(codeOfFile(pipe), eCantOpenFile);
    EXPECT_EQ(codeOfFile("/dev/zero"), eCantOpenFile);
}

TEST(DrawingFiles, FileWithoutPermissionIsNotRead) {
    QTemporaryDir folder;
    OdDbDatabase::createEmpty()->writeFile(pathIn(folder));
    ASSERT_EQ(chmod(folder.path().toLocal8Bit().constData(), 0755), 0);
    ASSERT_EQ(chmod(folder.filePath("plan.dxf").toLocal8Bit().constData(), 0), 0);
    const AsNobody noRights;
    try {
        OdDbDatabase::readFile(pathIn(folder));
        FAIL() << "read without permission";
    } catch (const OdError& error) {
        EXPECT_EQ(error.code(), eCantOpenFile);
        EXPECT_NE(textOf(error).find("Permission denied"), std::string::npos) << textOf(error);
    }
}

TEST(DrawingFiles, FolderWithoutPermissionKeepsItsFile) {
    QTemporaryDir folder;
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    database->writeFile(pathIn(folder));
    const std::string before = database->writeBytes();
    addLineTo(*database);
    ASSERT_EQ(chmod(folder.path().toLocal8Bit().constData(), 0555), 0);
    {
        const AsNobody noRights;
        try {
            database->writeFile(pathIn(folder));
            ADD_FAILURE() << "written without permission";
        } catch (const OdError& error) {
            EXPECT_EQ(error.code(), eFileWriteError);
            EXPECT_NE(textOf(error).find("plan.dxf"), std::string::npos) << textOf(error);
        }
    }
    ASSERT_EQ(chmod(folder.path().toLocal8Bit().constData(), 0755), 0);
    EXPECT_TRUE(database->isModified());
    EXPECT_EQ(OdDbDatabase::readFile(pathIn(folder))->writeBytes(), before);
}

TEST(DrawingFiles, ChangeByAnotherProgramIsTold) {
    QTemporaryDir folder;
    OdDbDatabase::createEmpty()->writeFile(pathIn(folder));
    const OdDbDatabasePtr mine = OdDbDatabase::readFile(pathIn(folder));
    const OdDbDatabasePtr theirs = OdDbDatabase::readFile(pathIn(folder));
    EXPECT_FALSE(mine->isFileChangedByOthers());
    addLineTo(*theirs);
    theirs->writeFile(pathIn(folder));
    EXPECT_TRUE(mine->isFileChangedByOthers());
    EXPECT_FALSE(theirs->isFileChangedByOthers());
    mine->writeFile(pathIn(folder));
    EXPECT_FALSE(mine->isFileChangedByOthers());
    EXPECT_TRUE(theirs->isFileChangedByOthers());
}

TEST(DrawingFiles, AnotherNameIsAnotherFile) {
    QTemporaryDir folder;
    OdDbDatabase::createEmpty()->writeFile(pathIn(folder));
    const OdDbDatabasePtr mine = OdDbDatabase::readFile(pathIn(folder));
    const OdDbDatabasePtr theirs = OdDbDatabase::readFile(pathIn(folder));
    addLineTo(*theirs);
    theirs->writeFile(pathIn(folder));
    mine->setFilename(pathIn(folder));
    EXPECT_TRUE(mine->isFileChangedByOthers()) << "the name is the same";
    mine->setFilename(OdString(L"elsewhere.dxf"));
    mine->setFilename(pathIn(folder));
    EXPECT_FALSE(mine->isFileChangedByOthers()) << "what lay under the former name is forgotten";
}

TEST(DrawingFiles, FileThatIsGoneOrWasNeverThereIsNoChange) {
    QTemporaryDir folder;
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    EXPECT_FALSE(database->isFileChangedByOthers());
    database->writeFile(pathIn(folder));
    ASSERT_TRUE(QFile::remove(folder.filePath("plan.dxf")));
    EXPECT_FALSE(database->isFileChangedByOthers());
}

TEST(DrawingFiles, LinkIsFollowedAndKept) {
    QTemporaryDir folder;
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    database->writeFile(pathIn(folder));
    const QString link = folder.filePath("link.dxf");
    ASSERT_TRUE(QFile::link(folder.filePath("plan.dxf"), link));
    addLineTo(*database);
    database->writeFile(link.toStdWString());
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(OdDbDatabase::readFile(pathIn(folder))->writeBytes(), database->writeBytes());
}
