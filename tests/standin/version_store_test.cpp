// Former versions of drawing files below the root directory.
#include "standin/history/version_store.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace standin;

namespace {

// A disk that is full as soon as something is written.
class FullDisk : public QSaveFile {
public:
    using QSaveFile::QSaveFile;

protected:
    qint64 writeData(const char*, qint64) override {
        setErrorString(QStringLiteral("No space left on device"));
        return -1;
    }
};

struct VersionStoreTest : testing::Test {
    VersionStoreTest() {
        io.reportProblem = [this](const QString& text) { told << text; };
        io.lockTimeout = 50;
        restart();
    }
    void restart() {
        store.reset();
        store = std::make_unique<VersionStore>(root.filePath("data"), io);
    }
    // As a save does that goes well.
    static bool keepIn(VersionStore& versions, const QString& path, const QString& reason, int maximum) {
        if (!versions.add(path, reason))
            return false;
        versions.settle(path, maximum);
        return true;
    }
    bool keep(const QString& path, const QString& reason, int maximum) {
        return keepIn(*store, path, reason, maximum);
    }
    // Each content has a time of its own, as it has on a disk.
    void write(const QByteArray& bytes) {
        QFile file(drawing);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.flush();
        EXPECT_TRUE(file.setFileTime(QDateTime(QDate(2024, 3, ++day), QTime(12, 0), Qt::UTC),
                                     QFileDevice::FileModificationTime));
    }
    void keepInTurn(const QStringList& contents, int maximum) {
        for (const QString& content : contents) {
            write(content.toUtf8());
            EXPECT_TRUE(keep(drawing, "reason of " + content, maximum));
        }
    }
    static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("-");
    }
    QStringList contents() const {
        QStringList result;
        for (const FileVersion& version : store->versionsOf(drawing))
            result << QString::fromUtf8(contentOf(version.file));
        return result;
    }
    QStringList reasons() const {
        QStringList result;
        for (const FileVersion& version : store->versionsOf(drawing))
            result << version.reason;
        return result;
    }
    void removeFolder() { EXPECT_TRUE(QDir(store->folderOf(drawing)).removeRecursively()); }

    QTemporaryDir root;
    const QString drawing = root.filePath("house.dxf");
    StoreIo io;
    QStringList told;
    int day = 0;
    std::unique_ptr<VersionStore> store;
};

TEST_F(VersionStoreTest, ADrawingWithoutAFileLeavesNothingToKeep) {
    EXPECT_FALSE(keep(drawing, "first save", 5));
    EXPECT_TRUE(store->versionsOf(drawing).empty());
    EXPECT_EQ(told, QStringList());
    EXPECT_FALSE(QFileInfo::exists(root.filePath("data")));
}

TEST_F(VersionStoreTest, VersionsComeOldestFirstWithTheirReasons) {
    keepInTurn({"1", "2", "3"}, 5);
    EXPECT_EQ(contents(), QStringList({"1", "2", "3"}));
    EXPECT_EQ(reasons(), QStringList({"reason of 1", "reason of 2", "reason of 3"}));
    EXPECT_EQ(contentOf(drawing), QByteArray("3"));
}

TEST_F(VersionStoreTest, AVersionKeepsTheTimeOfItsFile) {
    keepInTurn({"1"}, 5);
    EXPECT_EQ(QFileInfo(store->versionsOf(drawing).front().file).lastModified(),
              QFileInfo(drawing).lastModified());
}

TEST_F(VersionStoreTest, VersionsAndReasonsAreThereAfterARestart) {
    keepInTurn({"1", "2"}, 5);
    keep(drawing, QString::fromUtf8("\xC3\xA9 \xE4\xB8\x96: %1 <b>\n#'\""), 5);
    restart();
    EXPECT_EQ(contents(), QStringList({"1", "2"}));
    EXPECT_EQ(reasons().last(), QString::fromUtf8("\xC3\xA9 \xE4\xB8\x96: %1 <b>\n#'\""));
    EXPECT_EQ(told, QStringList());
}

TEST_F(VersionStoreTest, TheOldestAreRemovedPastTheMaximum) {
    keepInTurn({"1", "2", "3", "4", "5", "6", "7"}, 3);
    EXPECT_EQ(contents(), QStringList({"5", "6", "7"}));
    EXPECT_EQ(QDir(store->folderOf(drawing)).entryList(QDir::Files).size(), 3);
}

TEST_F(VersionStoreTest, ASmallerMaximumRemovesMoreWithTheNextVersion) {
    keepInTurn({"1", "2", "3", "4"}, 5);
    keepInTurn({"5"}, 2);
    EXPECT_EQ(contents(), QStringList({"4", "5"}));
}

TEST_F(VersionStoreTest, AVersionOfASaveThatFailedIsTakenBackAndNoOlderOneIsMissed) {
    keepInTurn({"1", "2"}, 2);
    write("3");
    const auto kept = store->add(drawing, "not to be");
    ASSERT_TRUE(kept);
    EXPECT_EQ(contents(), QStringList({"1", "2", "3"})) << "until the file is written";
    store->takeBack(*kept);
    EXPECT_EQ(contents(), QStringList({"1", "2"}));
    restart();
    EXPECT_EQ(contents(), QStringList({"1", "2"}));
    EXPECT_EQ(reasons(), QStringList({"reason of 1", "reason of 2"}));
}

TEST_F(VersionStoreTest, TakingBackTheFirstVersionLeavesNoTrace) {
    write("1");
    store->takeBack(*store->add(drawing, "not to be"));
    EXPECT_EQ(contents(), QStringList());
    EXPECT_FALSE(QFileInfo::exists(store->folderOf(drawing)));
}

TEST_F(VersionStoreTest, TakingBackWhatWasKeptAlreadyPutsTheReasonBack) {
    keepInTurn({"1", "2"}, 5);
    store->takeBack(*store->add(drawing, "not to be"));
    EXPECT_EQ(contents(), QStringList({"1", "2"}));
    EXPECT_EQ(reasons(), QStringList({"reason of 1", "reason of 2"}));
}

TEST_F(VersionStoreTest, AFileThatIsTheLatestVersionAlreadyOnlyTakesTheReason) {
    keepInTurn({"1", "2"}, 5);
    keep(drawing, "after a save that failed", 5);
    EXPECT_EQ(contents(), QStringList({"1", "2"}));
    EXPECT_EQ(reasons().last(), "after a save that failed");
}

TEST_F(VersionStoreTest, DrawingsOfTheSameNameInOtherFoldersHaveTheirOwnVersions) {
    keepInTurn({"1"}, 5);
    QDir().mkpath(root.filePath("other"));
    QFile::copy(drawing, root.filePath("other/house.dxf"));
    keep(root.filePath("other/house.dxf"), "", 5);
    EXPECT_EQ(store->versionsOf(root.filePath("other/house.dxf")).size(), 1U);
    EXPECT_EQ(store->versionsOf(drawing).size(), 1U);
    EXPECT_NE(store->folderOf(root.filePath("other/house.dxf")), store->folderOf(drawing));
}

TEST_F(VersionStoreTest, ALinkLeadsToTheVersionsOfItsFile) {
    keepInTurn({"1"}, 5);
    QFile::link(drawing, root.filePath("link.dxf"));
    EXPECT_EQ(store->versionsOf(root.filePath("link.dxf")).size(), 1U);
    EXPECT_EQ(store->versionsOf(root.filePath("./link.dxf")).size(), 1U);
}

TEST_F(VersionStoreTest, VersionsStayWhenTheDrawingIsDeleted) {
    keepInTurn({"1"}, 5);
    ASSERT_TRUE(QFile::remove(drawing));
    EXPECT_EQ(contents(), QStringList({"1"}));
}

TEST_F(VersionStoreTest, AVanishedFolderIsToldAndMadeAnewWithoutForgettingWhatWasInIt) {
    keepInTurn({"1", "2"}, 5);
    removeFolder();
    EXPECT_EQ(contents(), QStringList({"-", "-"}));
    keepInTurn({"3"}, 5);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().startsWith("The folder with the former versions of "));
    EXPECT_TRUE(told.front().contains(store->folderOf(drawing)));
    EXPECT_EQ(contents(), QStringList({"-", "-", "3"}));
    EXPECT_EQ(reasons(), QStringList({"reason of 1", "reason of 2", "reason of 3"}));
    keepInTurn({"4"}, 5);
    EXPECT_EQ(told.size(), 1) << "told once";
}

TEST_F(VersionStoreTest, AFolderThatCannotBeMadeIsToldAndLosesNothing) {
    QFile inTheWay(root.filePath("data"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    write("1");
    EXPECT_FALSE(keep(drawing, "", 5));
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().contains("could not be kept"));
    EXPECT_EQ(contentOf(drawing), QByteArray("1"));
}

TEST_F(VersionStoreTest, AFullDiskIsToldAndLeavesTheVersionsAsTheyWere) {
    keepInTurn({"1", "2"}, 2);
    io.newSaveFile = [](const QString& path) { return std::make_unique<FullDisk>(path); };
    restart();
    write("3");
    EXPECT_FALSE(keep(drawing, "", 2));
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().contains("No space left on device"));
    EXPECT_EQ(contents(), QStringList({"1", "2"}));
    EXPECT_EQ(QDir(store->folderOf(drawing)).entryList(QDir::Files).size(), 2);
}

TEST_F(VersionStoreTest, VersionsAreFoundWithoutTheIndex) {
    keepInTurn({"1", "2"}, 5);
    ASSERT_TRUE(QFile::remove(root.filePath("data/history.yaml")));
    restart();
    EXPECT_EQ(contents(), QStringList({"1", "2"}));
    EXPECT_EQ(reasons(), QStringList({"", ""}));
}

TEST_F(VersionStoreTest, WhatACrashLeftOfACopyIsNoVersion) {
    keepInTurn({"1"}, 5);
    const QString whole = store->versionsOf(drawing).front().file;
    QFile::copy(whole, whole + ".x1y2z3");
    QFile::copy(whole, store->folderOf(drawing) + "/notes.txt");
    EXPECT_EQ(contents(), QStringList({"1"}));
}

TEST_F(VersionStoreTest, TwoProgramsKeepTheirVersionsSideBySide) {
    VersionStore other(root.filePath("data"), io);
    keepInTurn({"1"}, 5);
    write("2");
    EXPECT_TRUE(keepIn(other, drawing, "by the other one", 5));
    keepInTurn({"3"}, 5);
    restart();
    EXPECT_EQ(contents(), QStringList({"1", "2", "3"}));
    EXPECT_EQ(reasons(), QStringList({"reason of 1", "by the other one", "reason of 3"}));
    EXPECT_EQ(told, QStringList());
}

TEST_F(VersionStoreTest, OddNamesOfDrawingsAreKept) {
    for (const char* name :
         {"a b.dxf", "no suffix", "..dxf", "\xC3\xA9\xE4\xB8\x96.dxf", "a\\b[c].dwg", "quote'\".dxf"}) {
        const QString path = root.filePath(QString::fromUtf8(name));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name;
        file.close();
        EXPECT_TRUE(keep(path, "x", 5)) << name;
        ASSERT_EQ(store->versionsOf(path).size(), 1U) << name;
        EXPECT_TRUE(QFileInfo(store->versionsOf(path).front().file).isFile()) << name;
    }
    EXPECT_EQ(told, QStringList());
}

} // namespace
