// Characters that the local 8-bit code page cannot express are lost on the way into the drawing, and only
// those.
#include "dwgprops/db_text.h"
#include "tests/dwgprops/dialog_driver.h"
#include "tests/support/local_code_page.h"

#include <QProcess>

namespace {

class TextOnItsWay : public DrawingProperties {
protected:
    void expectArrival(const QString& typed, const QString& expected) {
        OpenProperties dialog(kSummary);
        dialog.control<QLineEdit>("titleEdit")->setText(typed);
        dialog.customTable()->setItem(0, 0, new QTableWidgetItem(typed));
        dialog.customTable()->setItem(0, 1, new QTableWidgetItem(typed));
        dialog.click("okButton");
        EXPECT_EQ(QString::fromStdWString(summary()->getTitle().wide()), expected);
        EXPECT_EQ(properties(), (Properties{{expected, expected}}));
    }
    const QString mixed = QString::fromUtf8("a\xD0\x96\xC3\xA9z"); // a, a Cyrillic letter, e with acute, z
};

} // namespace

TEST_F(TextOnItsWay, LosesWhatPlainAsciiCannotExpress) {
    const LocalCodePage ascii("US-ASCII");
    expectArrival(mixed, "a??z");
}

TEST_F(TextOnItsWay, LosesOnlyWhatTheCodePageCannotExpress) {
    const LocalCodePage western("ISO-8859-1");
    expectArrival(mixed, QString::fromUtf8("a?\xC3\xA9z"));
}

TEST_F(TextOnItsWay, ArrivesAsFarAsTheLocaleOfTheProcessCanExpressIt) {
    QString expected;
    for (const QChar c : mixed)
        expected += QTextCodec::codecForLocale()->canEncode(c) ? c : QChar('?');
    expectArrival(mixed, expected);
}

namespace {

// Runs one test of this program in another locale.
bool passesIn(const char* locale, const char* test, QByteArray& output) {
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", locale);
    environment.insert("LANGUAGE", locale);
    for (const char* part : {"GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX"})
        environment.remove(part); // of the tests of this process, not of the one test
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--gtest_filter=") + test});
    EXPECT_TRUE(child.waitForFinished(60000));
    output = child.readAll();
    return child.exitCode() == 0 && output.contains("[  PASSED  ] 1 test");
}

} // namespace

TEST(MonthNames, AreThoseOfTheSystemsLanguage) {
    const OdDbDate seventhOfMarch(2460377, 0);
    if (qgetenv("LC_ALL").startsWith("de_DE")) {
        EXPECT_EQ(DbDateToLocalString(seventhOfMarch), QString::fromUtf8("07 M\xC3\xA4rz 2024 00:00:00"));
        return;
    }
    EXPECT_EQ(DbDateToLocalString(seventhOfMarch), QStringLiteral("07 March 2024 00:00:00"));
    QByteArray output;
    EXPECT_TRUE(passesIn("de_DE.UTF-8", "MonthNames.AreThoseOfTheSystemsLanguage", output)) << output.data();
}

// What the plain C locale can express is the system's matter; nothing but that may be lost in it.
TEST(TextInThePlainCLocale, ArrivesAsFarAsThatLocaleCanExpressIt) {
    QByteArray output;
    EXPECT_TRUE(passesIn("C", "TextOnItsWay.ArrivesAsFarAsTheLocaleOfTheProcessCanExpressIt", output))
        << output.data();
}
