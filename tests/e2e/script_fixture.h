// The program in a process of its own, which plays a script in a folder of the test's own.
#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

class ScriptFixture : public testing::Test {
protected:
    struct Result {
        int status; // -1 after a crash
        QString out, err;
    };
    Result run(const QStringList& arguments, const QByteArray& input = {}) {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral(WORKBENCH_FILE), arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(240000));
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromLocal8Bit(process.readAllStandardOutput()),
                QString::fromLocal8Bit(process.readAllStandardError())};
    }
    Result play(const QByteArray& script) {
        QFile file(folder.filePath("test.script"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(script);
        file.close();
        return run({"--headless", "--root", folder.filePath("root"), "--script", file.fileName()});
    }
    QTemporaryDir folder;
};
