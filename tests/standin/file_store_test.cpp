// Stores in files: what reaches the disk, and what happens when the disk or the file is not as it should be.
#include "standin/params/file_store.h"

#include "host/typed_reads.h"
#include "standin/params/mem_param.h"
#include "tests/support/poll.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using standin::FileStore;
using standin::StoreIo;

namespace {

// A disk that is full after some bytes.
class FullDiskFile : public QSaveFile {
public:
    FullDiskFile(const QString& path, qint64 bytes) : QSaveFile(path), room(bytes) {}

protected:
    qint64 writeData(const char* data, qint64 length) override {
        if (length > room) {
            QSaveFile::writeData(data, room);
            setErrorString(QStringLiteral("No space left on device"));
            return -1;
        }
        room -= length;
        return QSaveFile::writeData(data, length);
    }

private:
    qint64 room;
};

void writeText(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray readText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A store with its tree, as one process has it.
struct Process {
    Process(const standin::StoreFiles& files, StoreIo io)
        : tree(standin::newTree<IParam>(rules)), store(tree->section(), rules, files, std::move(io)) {}
    int value(const char* name) {
        int read = -1;
        readValue(tree.get(), name, &read);
        return read;
    }
    void set(const char* name, int value) { setIn("", name, value); }
    void setIn(const char* section, const char* name, int value) {
        const auto node = *section ? Ref<IParam>::take(tree->openSection(section, 1)) : Ref<IParam>(tree);
        const CKWVariant variant(value, kVtInt);
        node->setValue(name, &variant);
    }
    standin::TreeRulesPtr rules = std::make_shared<standin::TreeRules>();
    Ref<standin::MemParam> tree;
    FileStore store;
};

class FileStoreTest : public testing::Test {
protected:
    QTemporaryDir dir;
    QString path(const char* name) const { return dir.filePath(QString::fromLatin1(name)); }
    standin::StoreFiles files{path("shipped.yaml"), path("root/user.yaml"), 1000};
    QStringList problems;
    int filesOpened = 0;
    qint64 room = -1; // bytes left on the disk; negative: enough
    StoreIo io() {
        StoreIo made;
        made.reportProblem = [this](const QString& text) { problems << text; };
        made.newSaveFile = [this](const QString& name) -> std::unique_ptr<QSaveFile> {
            ++filesOpened;
            if (room >= 0)
                return std::make_unique<FullDiskFile>(name, room);
            return std::make_unique<QSaveFile>(name);
        };
        made.lockTimeout = 50;
        return made;
    }
    std::unique_ptr<Process> start() { return std::make_unique<Process>(files, io()); }
    void writeUser(const QByteArray& text) {
        QDir().mkpath(path("root"));
        writeText(files.user, text);
    }
    QStringList filesInRoot() const { return QDir(path("root")).entryList(QDir::Files, QDir::Name); }
    void SetUp() override { writeText(files.shipped, "A: 1\nB: 2\n"); }
};

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

TEST_F(FileStoreTest, AFileThatAnotherProcessIsWritingIsToldAndTriedAgain) {
    QDir().mkpath(path("root"));
    const auto process = start();
    QLockFile other(files.user + QStringLiteral(".lock"));
    ASSERT_TRUE(other.lock());
    process->set("A", 5);
    EXPECT_FALSE(process->store.flush());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("another program is writing it")));
    other.unlock();
    EXPECT_TRUE(process->store.flush());
    EXPECT_EQ(start()->value("A"), 5);
}

TEST_F(FileStoreTest, TwoProcessesOnOneRootKeepEachOthersChanges) {
    const auto first = start(), second = start();
    first->set("A", 10);
    first->setIn("Cursor", "Size", 3);
    ASSERT_TRUE(first->store.flush());
    second->set("B", 20);
    second->setIn("Grid", "Step", 4);
    ASSERT_TRUE(second->store.flush());
    const auto third = start();
    EXPECT_EQ(third->value("A"), 10);
    EXPECT_EQ(third->value("B"), 20);
    EXPECT_TRUE(openChild(third->tree.get(), "Cursor"));
    EXPECT_TRUE(openChild(third->tree.get(), "Grid"));
    EXPECT_EQ(second->value("A"), 10) << "the writer sees the other's change too";
    EXPECT_EQ(problems, QStringList());
}

TEST_F(FileStoreTest, OfAValueThatBothChangedTheLastWriterStands) {
    const auto first = start(), second = start();
    first->set("A", 10);
    ASSERT_TRUE(first->store.flush());
    second->set("A", 20);
    ASSERT_TRUE(second->store.flush());
    EXPECT_EQ(start()->value("A"), 20);
}

TEST_F(FileStoreTest, WhatOneProcessRemovedTheOtherDoesNotBringBack) {
    writeUser("A: 1\nB: 2\nS: {x: 1}\nT: {y: 1}\n");
    const auto first = start(), second = start();
    first->tree->removeValue("A");
    first->tree->removeEntry("S");
    ASSERT_TRUE(first->store.flush());
    second->set("C", 3);
    ASSERT_TRUE(second->store.flush());
    const auto third = start();
    EXPECT_EQ(third->value("A"), -1);
    EXPECT_EQ(childNames(third->tree.get()), std::vector<std::string>{"T"});
    EXPECT_EQ(third->value("C"), 3);
}

TEST_F(FileStoreTest, AListThatBothChangedIsNotMixedAndTheOthersVersionIsKept) {
    files.wholeDepth = 0;
    const auto first = start(), second = start();
    first->set("A", 10);
    ASSERT_TRUE(first->store.flush());
    second->set("B", 20);
    ASSERT_TRUE(second->store.flush());
    const auto third = start();
    EXPECT_EQ(third->value("A"), 1);
    EXPECT_EQ(third->value("B"), 20);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("user.yaml.other-1")));
    EXPECT_TRUE(readText(path("root/user.yaml.other-1")).contains("A: 10"));
}

TEST_F(FileStoreTest, SectionsAtTheWholeDepthAreTakenAsWholes) {
    writeUser("L:\n  X: {1: 1, 2: 2}\n  Y: {1: 1}\n");
    files.wholeDepth = 2;
    const auto first = start(), second = start();
    first->setIn("L/X", "1", 7);
    ASSERT_TRUE(first->store.flush());
    second->setIn("L/Y", "1", 8);
    ASSERT_TRUE(second->store.flush());
    EXPECT_EQ(problems, QStringList());
    second->setIn("L/X", "2", 9);
    first->setIn("L/X", "3", 6);
    ASSERT_TRUE(first->store.flush());
    ASSERT_TRUE(second->store.flush());
    int third = -1;
    const auto after = start();
    readValue(openChild(after->tree.get(), "L/X").get(), "3", &third);
    EXPECT_EQ(third, -1) << "both changed X: the last writer's stands alone";
    EXPECT_EQ(problems.size(), 1);
}

} // namespace
