// Characters that the local 8-bit code page cannot express are lost on the way into the drawing, and only
// those.
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

// What the plain C locale can express is the system's matter; nothing but that may be lost in it.
TEST(TextInThePlainCLocale, ArrivesAsFarAsThatLocaleCanExpressIt) {
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C");
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QCoreApplication::applicationFilePath(),
                {"--gtest_filter=TextOnItsWay.ArrivesAsFarAsTheLocaleOfTheProcessCanExpressIt"});
    ASSERT_TRUE(child.waitForFinished(60000));
    EXPECT_EQ(child.exitCode(), 0) << child.readAll().toStdString();
}
