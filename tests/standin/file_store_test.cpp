// Stores in files: what reaches the disk, and what happens when the disk or the file is not as it should be.
#include "tests/standin/file_store_fixture.h"
#include "tests/support/memory_bound.h"
#include "tests/support/poll.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

TEST_F(FileStoreTest, TheShippedDefaultServesUntilTheUserHasAFile) {
    EXPECT_EQ(start()->value("A"), 1);
    EXPECT_FALSE(QFile::exists(files.user)) << "reading writes nothing";
    writeUser("A: 7\n");
    const auto process = start();
    EXPECT_EQ(process->value("A"), 7);
    EXPECT_EQ(process->value("B"), -1) << "the user's file is the whole tree";
    EXPECT_EQ(problems, QStringList());
}

TEST_F(FileStoreTest, AChangeIsThereAfterARestartAndTheShippedFileStays) {
    start()->set("A", 5);
    EXPECT_EQ(start()->value("A"), 5);
    EXPECT_EQ(start()->value("B"), 2);
    EXPECT_EQ(readText(files.shipped), "A: 1\nB: 2\n");
}

TEST_F(FileStoreTest, ManyChangesInOneTurnAreOneWrite) {
    const auto process = start();
    for (int i = 0; i < 1000; ++i)
        process->setIn("Section", std::to_string(i).c_str(), i);
    EXPECT_EQ(filesOpened, 0) << "not before the turn ends";
    EXPECT_TRUE(waitUntil([this] { return filesOpened > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(filesOpened, 1);
    EXPECT_TRUE(process->store.flush());
    EXPECT_EQ(filesOpened, 1) << "nothing was left to write";
}

TEST_F(FileStoreTest, SettingWhatIsThereAlreadyWritesNothing) {
    const auto process = start();
    process->set("A", 1);
    EXPECT_TRUE(process->store.flush());
    EXPECT_EQ(filesOpened, 0);
}

TEST_F(FileStoreTest, ABrokenUserFileIsToldLeftAndTheDefaultServes) {
    writeUser("A: [1\nB: 3\n");
    EXPECT_EQ(start()->value("A"), 1);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("user.yaml:2:")) ||
                problems[0].contains(QStringLiteral("user.yaml:1:")))
        << problems[0].toStdString();
    EXPECT_EQ(readText(files.user), "A: [1\nB: 3\n");
    EXPECT_EQ(filesInRoot(), QStringList{QStringLiteral("user.yaml")});
}

TEST_F(FileStoreTest, ABrokenUserFileIsKeptBesideBeforeItIsOverwritten) {
    writeUser("A: [1\n");
    start()->set("B", 9);
    EXPECT_EQ(readText(path("root/user.yaml.broken-1")), "A: [1\n");
    EXPECT_EQ(start()->value("B"), 9);
    EXPECT_EQ(problems.size(), 2) << "told at the start and when it was put aside";
}

TEST_F(FileStoreTest, EachBrokenVersionIsKeptOnce) {
    writeUser("A: [1\n");
    start()->set("B", 9);
    writeUser("A: [2\n");
    start()->set("B", 10);
    writeUser("A: [1\n");
    start()->set("B", 11);
    EXPECT_EQ(readText(path("root/user.yaml.broken-1")), "A: [1\n");
    EXPECT_EQ(readText(path("root/user.yaml.broken-2")), "A: [2\n");
    EXPECT_FALSE(QFile::exists(path("root/user.yaml.broken-3")));
}

TEST_F(FileStoreTest, AFaultInOneEntryLosesThatEntryOnlyAndTheFileIsKept) {
    writeUser("A: !colour 4\nB: 8\n");
    const auto process = start();
    EXPECT_EQ(process->value("B"), 8);
    EXPECT_EQ(problems.size(), 1);
    process->set("C", 1);
    EXPECT_TRUE(process->store.flush());
    EXPECT_EQ(readText(path("root/user.yaml.broken-1")), "A: !colour 4\nB: 8\n");
    EXPECT_EQ(start()->value("B"), 8);
}

TEST_F(FileStoreTest, AFileThatIsBrokenWhileTheProgramRunsIsKeptToo) {
    const auto process = start();
    process->set("A", 5);
    ASSERT_TRUE(process->store.flush());
    writeUser("garbage: [");
    process->set("A", 6);
    EXPECT_TRUE(process->store.flush());
    EXPECT_EQ(readText(path("root/user.yaml.broken-1")), "garbage: [");
    EXPECT_EQ(start()->value("A"), 6);
}

TEST_F(FileStoreTest, AFullDiskIsToldWithItsReasonAndLeavesTheOldFile) {
    start()->set("A", 5);
    const QByteArray before = readText(files.user);
    const auto process = start();
    room = 3;
    process->set("A", 6);
    EXPECT_FALSE(process->store.flush());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("No space left on device")));
    EXPECT_TRUE(problems[0].contains(QStringLiteral("user.yaml")));
    EXPECT_EQ(readText(files.user), before);
    EXPECT_EQ(filesInRoot(), QStringList{QStringLiteral("user.yaml")}) << "no half file stays";
    EXPECT_EQ(process->value("A"), 6) << "the change is kept in memory";
    room = -1;
    EXPECT_TRUE(process->store.flush()) << "and written as soon as there is room";
    EXPECT_EQ(start()->value("A"), 6);
}

TEST_F(FileStoreTest, ATakenNameForTheCopyIsPassedOver) {
    writeUser("A: [1\n");
    QDir().mkpath(path("root/user.yaml.broken-1"));
    const auto process = start();
    process->set("A", 2);
    EXPECT_TRUE(process->store.flush()) << "the next free name serves";
    EXPECT_EQ(readText(path("root/user.yaml.broken-2")), "A: [1\n");
}

TEST_F(FileStoreTest, ARootThatCannotBeMadeIsToldWithItsReason) {
    writeText(path("file"), "no folder");
    files.user = path("file/root/user.yaml");
    const auto process = start();
    EXPECT_EQ(process->value("A"), 1);
    process->set("A", 2);
    EXPECT_FALSE(process->store.flush());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("its folder cannot be made")));
}

TEST_F(FileStoreTest, AUserFileThatCannotBeReadIsToldAndNotOverwritten) {
    QDir().mkpath(files.user); // a folder in its place
    const auto process = start();
    EXPECT_EQ(process->value("A"), 1);
    EXPECT_EQ(problems.size(), 1);
    process->set("A", 2);
    EXPECT_FALSE(process->store.flush());
    EXPECT_TRUE(QFileInfo(files.user).isDir());
}

TEST_F(FileStoreTest, AMissingShippedFileIsTold) {
    QFile::remove(files.shipped);
    EXPECT_EQ(start()->value("A"), -1);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("shipped.yaml")));
}

TEST_F(FileStoreTest, WhatIsNoRegularFileIsToldAndNeverWaitedFor) {
    QDir().mkpath(path("root"));
    const QByteArray name = QFile::encodeName(files.user);
    ASSERT_EQ(mkfifo(name.constData(), 0600), 0);
    EXPECT_EQ(start()->value("A"), 1) << "the shipped default serves";
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].endsWith("user.yaml cannot be read: it is no regular file"))
        << problems[0].toStdString();
    ASSERT_TRUE(QFile::remove(files.user));
    ASSERT_TRUE(QFile::link("/dev/zero", files.user));
    EXPECT_EQ(start()->value("A"), 1);
    EXPECT_TRUE(problems.last().endsWith("cannot be read: it is no regular file"))
        << problems.last().toStdString();
    ASSERT_TRUE(QFile::remove(files.user));
    ASSERT_TRUE(QDir().mkdir(files.user));
    EXPECT_EQ(start()->value("A"), 1);
    EXPECT_TRUE(problems.last().endsWith("cannot be read: it is a folder")) << problems.last().toStdString();
    start()->set("A", 3);
    EXPECT_TRUE(problems.last().contains("could not be written: it is a folder"))
        << problems.last().toStdString();
}

TEST_F(FileStoreTest, AFileOfGigabytesIsToldAndNotRead) {
    writeUser("A: 7\n");
    ASSERT_TRUE(QFile::resize(files.user, qint64(1) << 33));
    const MemoryBound bound(100);
    EXPECT_EQ(start()->value("A"), 1);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].endsWith("cannot be read: it is larger than 16 MB")) << problems[0].toStdString();
}

TEST_F(FileStoreTest, AFolderThatCannotBeMadeIsToldWithTheReason) {
    writeText(path("root"), "in the way");
    start()->set("A", 3);
    ASSERT_GE(problems.size(), 1);
    EXPECT_TRUE(
        problems.last().contains("could not be written: its folder cannot be made: Not a directory") ||
        problems.last().contains("could not be written: its folder cannot be made: File exists"))
        << problems.last().toStdString();
}

// The limit on the size of files stands for a disk that takes a part of what is written and then no more.
TEST_F(FileStoreTest, ADiskThatTakesAPartOnlyIsToldWithTheReason) {
    const auto process = start();
    const auto longText = std::string(200000, 'x');
    CKWVariant value;
    value = longText.c_str();
    process->tree->setValue("Long", &value);
    rlimit former{};
    getrlimit(RLIMIT_FSIZE, &former);
    const auto formerAction = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{65536, former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_FALSE(process->store.flush());
    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, formerAction);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains("could not be written: File too large")) << problems[0].toStdString();
    EXPECT_TRUE(process->store.flush()) << "the next attempt goes well";
}

} // namespace
