// Programs that share a root directory: who is told, and when nobody is.
#include "standin/params/root_use.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using standin::RootUse;

namespace {

class RootUseTest : public testing::Test {
protected:
    QTemporaryDir dir;
    const QString root = dir.filePath("root");
    QStringList locks() const { return QDir(root).entryList({"*.lock"}, QDir::Files, QDir::Name); }
    // The lock of a program that has not taken it back.
    void leaveLock(qint64 process, const QString& host) {
        QDir().mkpath(root);
        QFile file(root + "/workbench-1.lock");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QStringLiteral("%1\nworkbench\n%2\n").arg(process).arg(host).toLocal8Bit());
    }
    static qint64 endedProcess() {
        QProcess process;
        process.start("true", QStringList());
        EXPECT_TRUE(process.waitForStarted());
        const qint64 id = process.processId();
        EXPECT_TRUE(process.waitForFinished());
        return id;
    }
};

TEST_F(RootUseTest, TheOnlyProgramIsToldNothingAndLeavesNothing) {
    {
        const RootUse alone(root);
        EXPECT_EQ(alone.notice(), "");
        EXPECT_EQ(locks().size(), 1);
    }
    EXPECT_EQ(locks(), QStringList());
}

TEST_F(RootUseTest, ASecondProgramIsToldOfTheFolderAndOfWhatHappensToChanges) {
    const RootUse first(root), second(root);
    EXPECT_EQ(first.notice(), "");
    EXPECT_TRUE(second.notice().startsWith("Another workbench is using this folder, too: " + root))
        << second.notice().toStdString();
    EXPECT_TRUE(second.notice().contains("The changes of both are kept."));
    EXPECT_TRUE(second.notice().contains("NAME.other-1"));
}

TEST_F(RootUseTest, AThirdProgramIsToldWhenOnlyTheSecondStillRuns) {
    auto first = std::make_unique<RootUse>(root);
    const RootUse second(root);
    first.reset();
    EXPECT_NE(RootUse(root).notice(), "");
}

TEST_F(RootUseTest, AProgramAfterAllOthersHaveEndedIsToldNothing) {
    { const RootUse first(root), second(root), third(root); }
    EXPECT_EQ(RootUse(root).notice(), "");
}

TEST_F(RootUseTest, OfTwoRootsEachIsForItself) {
    const RootUse one(root);
    EXPECT_EQ(RootUse(dir.filePath("other")).notice(), "");
}

TEST_F(RootUseTest, TheLockOfACrashedProgramIsTakenOver) {
    leaveLock(endedProcess(), QSysInfo::machineHostName());
    const RootUse use(root);
    EXPECT_EQ(use.notice(), "");
    EXPECT_EQ(locks(), QStringList("workbench-1.lock"));
    EXPECT_NE(RootUse(root).notice(), "") << "it is held anew";
}

TEST_F(RootUseTest, OfALockOfAnotherMachineTheMachineAndTheFileAreTold) {
    leaveLock(1, "far.example");
    const RootUse use(root);
    EXPECT_TRUE(use.notice().contains("started on far.example")) << use.notice().toStdString();
    EXPECT_TRUE(use.notice().contains(root + "/workbench-1.lock")) << "whoever knows better can remove it";
}

TEST_F(RootUseTest, ALockFileThatNamesNobodyIsPassedOver) {
    QDir().mkpath(root);
    QFile empty(root + "/workbench-1.lock");
    ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
    empty.close();
    const RootUse use(root);
    EXPECT_EQ(use.notice(), "");
    EXPECT_NE(RootUse(root).notice(), "") << "the next lock serves";
}

TEST_F(RootUseTest, WhereNoLockCanBeMadeNothingIsTold) {
    QFile file(root);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(RootUse(root).notice(), "");
    EXPECT_EQ(RootUse(root + "/below").notice(), "");
    EXPECT_EQ(RootUse("/proc").notice(), "") << "a folder that takes no files, whoever asks";
    EXPECT_EQ(RootUse(QString()).notice(), "");
}

} // namespace
