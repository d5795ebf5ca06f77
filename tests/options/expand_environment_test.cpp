// The expansion of stored directories.
#include "options/store/expand_environment.h"

#include "tests/support/fixture_host.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

class Environment : public testing::Test {
protected:
    void TearDown() override {
        for (const QByteArray& name : names)
            qunsetenv(name);
    }
    void set(const QByteArray& name, const QByteArray& value) {
        names += name;
        qputenv(name, value);
    }
    FixtureHost host;

private:
    QList<QByteArray> names;
};

TEST_F(Environment, SetVariablesAreReplacedAndUnsetOnesDropped) {
    set("OPTION_TEST_A", "/a");
    set("OPTION_TEST_U", "\xC3\xA9");
    EXPECT_EQ(expandEnvironment("%OPTION_TEST_A%/x/%OPTION_TEST_A%"), "/a/x//a");
    EXPECT_EQ(expandEnvironment("%OPTION_TEST_U%"), QString(QChar(0xE9)));
    EXPECT_EQ(expandEnvironment("/p%OPTION_TEST_NONE%q"), "/pq");
    EXPECT_EQ(expandEnvironment("100%"), "100%");
    EXPECT_EQ(expandEnvironment("%%"), "%%");
}

TEST_F(Environment, TheSearchStartsAgainSoAVariableMayNameAnother) {
    set("OPTION_TEST_A", "%OPTION_TEST_B%/a");
    set("OPTION_TEST_B", "/b");
    EXPECT_EQ(expandEnvironment("%OPTION_TEST_A%"), "/b/a");
}

TEST_F(Environment, AVariableThatNamesItselfEnds) {
    set("OPTION_TEST_A", "%OPTION_TEST_A%");
    EXPECT_EQ(expandEnvironment("%OPTION_TEST_A%"), "%OPTION_TEST_A%");
    set("OPTION_TEST_B", "x%OPTION_TEST_B%%OPTION_TEST_B%");
    EXPECT_LT(expandEnvironment("%OPTION_TEST_B%").size(), 1 << 20);
    set("OPTION_TEST_C", "%OPTION_TEST_D%");
    set("OPTION_TEST_D", "%OPTION_TEST_C%");
    EXPECT_EQ(expandEnvironment("/%OPTION_TEST_C%").left(2), "/%");
}

TEST_F(Environment, HistoryIsOnlyItselfWhenItIsTheWholeText) {
    EXPECT_EQ(expandEnvironment("%HISTORY%/x"), "/x");
    EXPECT_EQ(expandEnvironment("%HISTORY%"), host.rootDir() + "/UnsavedFiles");
    EXPECT_EQ(expandEnvironment("%HISTORY%"), host.rootDir() + "/UnsavedFiles"); // it exists now
}

TEST_F(Environment, OnlyTheLastLevelOfTheHistoryFolderIsMade) {
    EXPECT_EQ(expandEnvironment("%HISTORY%"), host.rootDir() + "/UnsavedFiles");
    EXPECT_TRUE(QDir(host.rootDir() + "/UnsavedFiles").exists());
    ASSERT_TRUE(QDir(host.rootDir()).removeRecursively());
    EXPECT_EQ(expandEnvironment("%HISTORY%"), host.rootDir() + "/UnsavedFiles");
    EXPECT_FALSE(QDir(host.rootDir()).exists());
}

TEST_F(Environment, ManyNamesAndLongValuesAreReplaced) {
    QString many, expected;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray name = "OPTION_TEST_" + QByteArray::number(i);
        set(name, QByteArray::number(i));
        many += "/%" + name + "%";
        expected += "/" + QString::number(i);
    }
    EXPECT_EQ(expandEnvironment(many), expected);
    const QString text(70000, QLatin1Char('x'));
    set("OPTION_TEST_LONG", text.toUtf8());
    EXPECT_EQ(expandEnvironment("%OPTION_TEST_LONG%"), text);
    EXPECT_EQ(expandEnvironment("%OPTION_TEST_LONG%%OPTION_TEST_7%"), text + "7");
}

TEST_F(Environment, OfValuesThatNameOthersTwoHundredAndFiftySixAreFollowed) {
    for (int i = 0; i < 300; ++i)
        set("OPTION_TEST_" + QByteArray::number(i), "%OPTION_TEST_" + QByteArray::number(i + 1) + "%");
    EXPECT_EQ(expandEnvironment("%OPTION_TEST_0%"), "%OPTION_TEST_256%");
    set("OPTION_TEST_256", "/end");
    EXPECT_EQ(expandEnvironment("%OPTION_TEST_0%"), "/end");
}

TEST_F(Environment, ValuesWithPercentSignsMayLengthenTheTextBySixtyFourThousandCharacters) {
    const QString name = "%OPTION_TEST_A%";
    QString value(name.size() + 65536, QLatin1Char('x'));
    value[0] = '%';
    set("OPTION_TEST_A", value.toUtf8());
    EXPECT_EQ(expandEnvironment(name), value);
    set("OPTION_TEST_A", (value + "x").toUtf8());
    EXPECT_EQ(expandEnvironment(name), name);
}

} // namespace
