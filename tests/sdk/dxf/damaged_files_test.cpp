// The files that the fuzzer starts from and those that it has found faults with: each keeps the reader's
// contract.
#include "tests/sdk/dxf/reading_contract.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

std::string bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll().toStdString();
}

std::vector<std::string> filesIn(const char* folder) {
    std::vector<std::string> paths;
    const QDir place(QString(TEST_DATA_DIR "/fuzz/") + folder);
    for (const QString& name : place.entryList(QDir::Files))
        paths.push_back(place.filePath(name).toStdString());
    return paths;
}

std::string baseName(const testing::TestParamInfo<std::string>& file) {
    return QFileInfo(QString::fromStdString(file.param)).baseName().toStdString();
}

} // namespace

class DamagedFile : public testing::TestWithParam<std::string> {};
TEST_P(DamagedFile, KeepsTheContract) {
    EXPECT_EQ(faultOfReading(bytesOf(QString::fromStdString(GetParam()))), "");
}
INSTANTIATE_TEST_SUITE_P(Finds, DamagedFile, testing::ValuesIn(filesIn("finds")), baseName);

class SeedFile : public testing::TestWithParam<std::string> {};
TEST_P(SeedFile, IsReadWithoutWarningAndKeepsTheContract) {
    const std::string bytes = bytesOf(QString::fromStdString(GetParam()));
    EXPECT_EQ(faultOfReading(bytes), "");
    EXPECT_TRUE(OdDbDatabase::readBytes(bytes)->readWarnings().empty());
}
INSTANTIATE_TEST_SUITE_P(Seeds, SeedFile, testing::ValuesIn(filesIn("seeds")), baseName);
