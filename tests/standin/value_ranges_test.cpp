// Numbers of the profile that somebody has written beyond what the options allow.
#include "standin/params/value_ranges.h"

#include "host/app.h"
#include "host/typed_reads.h"
#include "standin/params/application.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace standin;

namespace {

void writeText(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

class ValueRangesTest : public testing::Test {
protected:
    ValueRangesTest() {
        QDir().mkpath(data);
        QDir().mkpath(root);
        for (const char* empty : {"/formats.yaml", "/papers.yaml", "/stddirs.yaml"})
            writeText(data + empty, "");
        writeText(
            data + "/preftree.yaml",
            "PrefTree:\n"
            "  Row: {IFace: \"IProfile\", Section: \"History\", Key: \"ON\",\n"
            "        Most: {Key: \"MOST\", Limits: !size [1, 100]},\n"
            "        Real: {Key: \"REAL\", Section: \"Deep\\\\Er\", Limits: !rsize [-0.5, 2.5]},\n"
            "        Free: {Key: \"FREE\"},\n"
            "        Grand: {Name: !wide \"x\", Child: {Key: \"MOST2\", Limits: !size [1, 2]}},\n"
            "        Other: {Key: \"MOST\", Section: \"Else\", IFace: \"SysVar\", Limits: !size [5, 6]}}\n"
            "  Above: {IFace: \"IProfile\", Section: \"S\", Key: \"ABOVE\", Part: {Limits: !size [1, 9]},\n"
            "          Sys: {Key: \"SYS\", sysvar: 1, Limits: !size [1, 9]}}\n");
    }
    void start(const QByteArray& profile) {
        application.reset();
        problems.clear();
        writeText(file, profile);
        ApplicationSetup setup{data, root, {}, 0};
        setup.io.reportProblem = [this](const QString& text) { problems << text; };
        application = std::make_unique<Application>(setup);
    }
    QTemporaryDir dir;
    const QString data = dir.filePath("data"), root = dir.filePath("root"), file = root + "/profile.yaml";
    QStringList problems;
    std::unique_ptr<Application> application;
};

int intOf(const char* section, const char* name) {
    int value = -1;
    readValue(openChild(appService<IProfile>().get(), section).get(), name, &value);
    return value;
}

double realOf(const char* section, const char* name) {
    double value = -1;
    readValue(openChild(appService<IProfile>().get(), section).get(), name, &value);
    return value;
}

TEST_F(ValueRangesTest, NumbersBeyondARangeCountAsItsEndAndAreTold) {
    start("History: {MOST: 2147483647, FREE: 2147483647}\nDeep: {Er: {REAL: -3.0}}\n");
    EXPECT_EQ(intOf("History", "MOST"), 100);
    EXPECT_EQ(intOf("History", "FREE"), 2147483647);
    EXPECT_EQ(realOf("Deep/Er", "REAL"), -0.5);
    const QString name = QDir::toNativeSeparators(file);
    EXPECT_EQ(
        problems,
        QStringList({name + ": Deep/Er/REAL is -3, which is not within -0.5 and 2.5; -0.5 counts.",
                     name + ": History/MOST is 2147483647, which is not within 1 and 100; 100 counts."}));
}

TEST_F(ValueRangesTest, ARowFindsItsKeyAboveItAndAVariableLimitsNoValueOfTheProfile) {
    start("S: {ABOVE: 10, SYS: 10}\n");
    EXPECT_EQ(intOf("S", "ABOVE"), 9);
    EXPECT_EQ(intOf("S", "SYS"), 10);
}

TEST_F(ValueRangesTest, EndsOfARangeAreWithinItAndTextsAreLeftAlone) {
    start("History: {MOST: 1}\n");
    EXPECT_EQ(intOf("History", "MOST"), 1);
    start("History: {MOST: 100}\nElse: {MOST: 99}\n");
    EXPECT_EQ(intOf("History", "MOST"), 100);
    EXPECT_EQ(intOf("Else", "MOST"), 99) << "the range of a system variable is none of the profile's";
    start("History: {MOST: 0}\n");
    EXPECT_EQ(intOf("History", "MOST"), 1);
    start("History: {MOST: \"many\"}\n");
    EXPECT_EQ(intOf("History", "MOST"), -1);
    EXPECT_EQ(problems, QStringList());
}

TEST_F(ValueRangesTest, WhatWasWrittenStaysInTheFile) {
    start("History: {MOST: 2147483647}\n");
    const CKWVariant other(3, kVtInt);
    openChild(appService<IProfile>().get(), "History", 1)->setValue("OTHER", &other);
    application.reset();
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    EXPECT_TRUE(text.contains("OTHER"));
    EXPECT_TRUE(text.contains("2147483647"));
}

TEST_F(ValueRangesTest, ValuesSetWhileTheProgramRunsAreHeldToo) {
    start("");
    const CKWVariant huge(2147483647, kVtInt);
    openChild(appService<IProfile>().get(), "History", 1)->setValue("MOST", &huge);
    EXPECT_EQ(intOf("History", "MOST"), 100);
}

TEST_F(ValueRangesTest, RowFindsItsStoreAtItselfOrOneLevelUpAndNoFurther) {
    start("Grand: {MOST2: 9}\nHistory: {MOST2: 9}\n");
    EXPECT_EQ(intOf("History", "MOST2"), 9);
    EXPECT_EQ(intOf("Grand", "MOST2"), 9);
    EXPECT_EQ(problems, QStringList());
}

} // namespace
