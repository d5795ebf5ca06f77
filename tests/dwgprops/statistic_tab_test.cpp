// The Statistics tab and the text of the editing time.
#include "dwgprops/statistic_tab.h"
#include "tests/dwgprops/dialog_driver.h"

#include <QGridLayout>

namespace {

constexpr std::uint32_t second = 1000, minute = 60 * second, hour = 60 * minute;

QString editingTime(std::uint32_t days, std::uint32_t milliseconds) {
    return StatisticTab::formatEditingTime(OdDbDate(days, milliseconds));
}

// A drawing whose header tells its dates.
OdDbDatabasePtr datedDrawing() {
    return OdDbDatabase::readBytes("0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n"
                                   "9\n$TDCREATE\n40\n2460377.586909722\n"
                                   "9\n$TDUPDATE\n40\n2460378.0\n"
                                   "9\n$TDINDWG\n40\n0.0625\n"
                                   "9\n$LASTSAVEDBY\n1\n<b>anna</b>\n"
                                   "0\nENDSEC\n0\nEOF\n");
}

class StatisticsPage : public DrawingProperties {
protected:
    static QString label(const OpenProperties& dialog, const char* name) {
        return OpenProperties::in<QLabel>(dialog.control<QWidget>("statisticTab"), name)->text();
    }
};

} // namespace

TEST(EditingTime, JustUnderAMinuteReads59SecAndOneMinuteExactlyReads1Min) {
    EXPECT_EQ(editingTime(0, minute - 1), QStringLiteral("59 sec"));
    EXPECT_EQ(editingTime(0, minute), QStringLiteral("1 min"));
}

TEST(EditingTime, NothingReadsZeroSeconds) { EXPECT_EQ(editingTime(0, 0), QStringLiteral("0 sec")); }

TEST(EditingTime, OneUnitOnlyIsShown) {
    EXPECT_EQ(editingTime(0, hour - 1), QStringLiteral("59 min"));
    EXPECT_EQ(editingTime(0, 90 * minute), QStringLiteral("1 h"));
}

TEST(EditingTime, DaysCountAsHours) { EXPECT_EQ(editingTime(2, 3 * hour), QStringLiteral("51 h")); }

TEST(EditingTime, FiftyDaysWrapIn32BitsAndRead6Hours) {
    EXPECT_EQ(editingTime(49, 0), QStringLiteral("1176 h"));
    EXPECT_EQ(editingTime(50, 0), QStringLiteral("6 h"));
}

TEST(EditingTime, ANegativeSpanWrapsToo) {
    EXPECT_EQ(editingTime(static_cast<std::uint32_t>(-1), 0), QStringLiteral("1169 h"));
}

TEST_F(StatisticsPage, ShowsDatesAndTimeOfTheDrawing) {
    useDrawing(datedDrawing());
    const OpenProperties dialog(kStatistics);
    EXPECT_EQ(label(dialog, "createdLabel"), QStringLiteral("07 March 2024 14:05:09"));
    EXPECT_EQ(label(dialog, "modifiedLabel"), QStringLiteral("08 March 2024 00:00:00"));
    EXPECT_EQ(label(dialog, "editingTimeLabel"), QStringLiteral("1 h"));
}

TEST_F(StatisticsPage, ShowsLastSavedByAndRevisionOfTheRecordWithoutReadingMarkup) {
    const OdDbDatabaseSummaryInfoPtr info = summary();
    info->setLastSavedBy(L"<b>anna</b>");
    info->setRevisionNumber(L"7");
    oddbPutSummaryInfo(info.get());
    const OpenProperties dialog(kStatistics);
    EXPECT_EQ(label(dialog, "lastSavedByLabel"), QStringLiteral("<b>anna</b>"));
    EXPECT_EQ(dialog.control<QLabel>("lastSavedByLabel")->textFormat(), Qt::PlainText);
    EXPECT_EQ(label(dialog, "revisionNumberLabel"), QStringLiteral("7"));
}

TEST_F(StatisticsPage, LabelsStandInColumnOneAndValuesInColumnTwo) {
    const OpenProperties dialog(kStatistics);
    auto* const grid = qobject_cast<QGridLayout*>(dialog.control<QWidget>("statisticTab")->layout());
    QStringList labels;
    for (int row = 1; row <= 5; ++row) {
        labels << qobject_cast<QLabel*>(grid->itemAtPosition(row, 1)->widget())->text();
        EXPECT_NE(qobject_cast<QLabel*>(grid->itemAtPosition(row, 2)->widget()), nullptr);
    }
    EXPECT_EQ(
        labels,
        QStringList({"Created:", "Modified:", "Last saved by:", "Revision number:", "Total editing time:"}));
    for (int row = 1; row <= 6; ++row)
        EXPECT_EQ(grid->itemAtPosition(row, 3)->spacerItem()->sizeHint(), QSize(40, 20));
    EXPECT_EQ(grid->itemAtPosition(6, 1)->spacerItem()->sizeHint(), QSize(20, 40));
}
