// What the host tells about files.
#include "host/files.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct FileFactsTest : testing::Test {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Zeichnung größer.dxf"));

    void write(const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }

    void setTime(const QDateTime& time) {
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::ReadWrite));
        ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
    }
};

} // namespace

TEST_F(FileFactsTest, AFileExistsAndAFolderOrAMissingNameDoesNot) {
    EXPECT_FALSE(Fio_IsFileExist(path.toStdWString().c_str()));
    write("0\nEOF\n");
    EXPECT_TRUE(Fio_IsFileExist(path.toStdWString().c_str()));
    EXPECT_FALSE(Fio_IsFileExist(folder.path().toStdWString().c_str()));
    EXPECT_FALSE(Fio_IsFileExist(L""));
}

TEST_F(FileFactsTest, SizeAndTimeOfChangeAreToldInUniversalTime) {
    write("0\nEOF\n");
    setTime(QDateTime(QDate(2021, 12, 31), QTime(23, 30, 15), Qt::OffsetFromUTC, -2 * 3600));
    FioFileInfo info{};
    ASSERT_TRUE(Fio_GetFileInfo(path.toStdWString().c_str(), &info));
    EXPECT_EQ(info.size, 6);
    EXPECT_EQ(QDate(info.year, info.month, info.day), QDate(2022, 1, 1));
    EXPECT_EQ(QTime(info.hour, info.minute, info.second), QTime(1, 30, 15));
}

TEST_F(FileFactsTest, NothingIsToldOfWhatIsNoFile) {
    FioFileInfo info{};
    info.size = 7;
    EXPECT_FALSE(Fio_GetFileInfo(folder.path().toStdWString().c_str(), &info));
    EXPECT_FALSE(Fio_GetFileInfo(path.toStdWString().c_str(), &info));
    EXPECT_EQ(info.size, 7);
}
