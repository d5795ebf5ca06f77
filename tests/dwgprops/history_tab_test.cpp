// The History tab over a history of the test's own, and over the module's, which is empty.
#include "dwgprops/custom_delegate.h"
#include "dwgprops/file_history.h"
#include "host/typed_reads.h"
#include "tests/dwgprops/dialog_driver.h"
#include "tests/support/time_zone.h"

#include <QDateTime>
#include <QFile>
#include <QHeaderView>
#include <QTranslator>

namespace {

using Versions = std::vector<std::pair<OdString, OdString>>;

// Hangs on the class of the database while it lives.
class HungOn {
public:
    explicit HungOn(const OdRxObjectPtr& extension) {
        OdDbDatabase::desc()->addX(OdRxObject::desc(), extension.get());
    }
    ~HungOn() { OdDbDatabase::desc()->delX(OdRxObject::desc()); }
    HungOn(const HungOn&) = delete;
    HungOn& operator=(const HungOn&) = delete;
};

class ToldHistory : public KWFileHistoryPE {
public:
    explicit ToldHistory(Versions told) : versions(std::move(told)), number(int(versions.size())) {}
    int query(wchar_t* document, Versions& out) override {
        asked = QString::fromWCharArray(document);
        wasEmpty = out.empty();
        out = versions;
        return number;
    }
    Versions versions;
    int number;
    QString asked;
    bool wasEmpty = false;
};

class Uppercase : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override {
        return QLatin1String(context) == "QWidget" ? QString::fromUtf8(source).toUpper() : QString();
    }
    bool isEmpty() const override { return false; }
};

class HistoryPage : public DrawingProperties {
protected:
    // A version file that was written at noon of a day in March 2024, universal time.
    OdString version(const QString& name, int day) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("0");
        file.flush();
        EXPECT_TRUE(file.setFileTime(QDateTime(QDate(2024, 3, day), QTime(12, 0), Qt::UTC),
                                     QFileDevice::FileModificationTime));
        return OdString(file.fileName().toStdWString());
    }
    static QStringList column(const QTableWidget& table, int column) {
        QStringList texts;
        for (int row = 0; row < table.rowCount(); ++row)
            texts << (table.item(row, column) ? table.item(row, column)->text() : QStringLiteral("-"));
        return texts;
    }
    int rowsWith(const CKWVariant& maximum) {
        openChild(&host.profile(), "FileHistory", 1)->setValue("FILEHISTORYMAX", &maximum);
        return OpenProperties().historyTable()->rowCount();
    }
    QTemporaryDir folder;
    const TimeZone zone{"UTC"};
};

} // namespace

TEST_F(HistoryPage, WithTheModulesOwnQueryShowsFiveEmptyRows) {
    const HungOn own(OdRxObjectPtr(new KWFileHistoryPE));
    const OpenProperties dialog(kHistory);
    EXPECT_EQ(column(*dialog.historyTable(), 0), QStringList({"-", "-", "-", "-", "-"}));
}

TEST_F(HistoryPage, WithoutAnyHistoryShowsFiveEmptyRows) {
    const OpenProperties dialog(kHistory);
    EXPECT_EQ(column(*dialog.historyTable(), 0), QStringList({"-", "-", "-", "-", "-"}));
}

TEST_F(HistoryPage, ModulesOwnQueryReturnsZeroAndLeavesTheListAlone) {
    Versions list{{L"a", L"b"}};
    wchar_t title[] = L"x";
    EXPECT_EQ(KWFileHistoryPE().query(title, list), 0);
    EXPECT_EQ(list.size(), 1U);
}

TEST_F(HistoryPage, ShowsTheLatestVersionFirst) {
    const HungOn told(
        OdRxObjectPtr(new ToldHistory({{version("1", 1), L"first"}, {version("2", 2), L"second"}})));
    const OpenProperties dialog(kHistory);
    EXPECT_EQ(column(*dialog.historyTable(), 0).mid(0, 3),
              QStringList({"02 March 2024 12:00:00", "01 March 2024 12:00:00", "-"}));
    EXPECT_EQ(column(*dialog.historyTable(), 1).mid(0, 3), QStringList({"second", "first", "-"}));
}

TEST_F(HistoryPage, OfThreeFilesWithTheMiddleOneMissingRows0And2AreFilledAndRow1IsBlank) {
    const HungOn told(OdRxObjectPtr(
        new ToldHistory({{version("1", 1), L"a"}, {L"/no/such/file", L"b"}, {version("3", 3), L"c"}})));
    const OpenProperties dialog(kHistory);
    EXPECT_EQ(column(*dialog.historyTable(), 1), QStringList({"c", "-", "a", "-", "-"}));
}

TEST_F(HistoryPage, AHistoryFolderThatVanishedLeavesAllRowsBlank) {
    Versions versions{{version("1", 1), L"a"}, {version("2", 2), L"b"}};
    const HungOn told(OdRxObjectPtr(new ToldHistory(versions)));
    ASSERT_TRUE(folder.remove());
    const OpenProperties dialog(kHistory);
    EXPECT_EQ(column(*dialog.historyTable(), 1), QStringList({"-", "-", "-", "-", "-"}));
}

TEST_F(HistoryPage, TimesAreShownInTheLocalZone) {
    const TimeZone east("EAST-9");
    const HungOn told(OdRxObjectPtr(new ToldHistory({{version("1", 31), L"a"}})));
    const OpenProperties dialog(kHistory);
    EXPECT_EQ(dialog.historyTable()->item(0, 0)->text(), QStringLiteral("31 March 2024 21:00:00"));
}

TEST_F(HistoryPage, EntriesPastTheLastRowDoNotAppear) {
    Versions versions;
    for (int i = 1; i <= 7; ++i)
        versions.emplace_back(version(QString::number(i), i), std::to_wstring(i));
    const HungOn told(OdRxObjectPtr(new ToldHistory(versions)));
    const OpenProperties dialog(kHistory);
    EXPECT_EQ(column(*dialog.historyTable(), 1), QStringList({"7", "6", "5", "4", "3"}));
}

TEST_F(HistoryPage, QueryIsAskedForTheTitleTextWithAnEmptyList) {
    drawing->setFilename(L"/some/where/house.dxf");
    host.document.shownTitle = L"shown title";
    const OdSmartPtr<ToldHistory> told(new ToldHistory({}));
    const HungOn hung(told);
    const OpenProperties dialog(kHistory);
    EXPECT_EQ(told->asked, QStringLiteral("shown title"));
    EXPECT_TRUE(told->wasEmpty);
}

TEST_F(HistoryPage, ARunToTheReturnedNumberSkipsWhatIsNotInTheList) {
    const OdSmartPtr<ToldHistory> told(new ToldHistory({{version("1", 1), L"a"}, {version("2", 2), L"b"}}));
    told->number = 4;
    const HungOn hung(told);
    EXPECT_EQ(column(*OpenProperties(kHistory).historyTable(), 1), QStringList({"-", "-", "b", "a", "-"}));
    told->number = 1;
    EXPECT_EQ(column(*OpenProperties(kHistory).historyTable(), 1), QStringList({"a", "-", "-", "-", "-"}));
    told->number = -3;
    EXPECT_EQ(column(*OpenProperties(kHistory).historyTable(), 1), QStringList({"-", "-", "-", "-", "-"}));
}

TEST_F(HistoryPage, ReasonsAndHeadingsAreTranslatedInTheContextQWidget) {
    Uppercase upper;
    QCoreApplication::installTranslator(&upper);
    const HungOn told(OdRxObjectPtr(new ToldHistory({{version("1", 1), L"saved \u00e9 %1"}})));
    const OpenProperties dialog(kHistory);
    QCoreApplication::removeTranslator(&upper);
    EXPECT_EQ(dialog.historyTable()->item(0, 1)->text(), QString::fromUtf8("SAVED \xC3\x89 %1"));
    EXPECT_EQ(dialog.historyTable()->horizontalHeaderItem(0)->text(), QStringLiteral("DATE"));
}

TEST_F(HistoryPage, AProfileWithoutTheMaximumGivesFiveRows) {
    openChild(&host.profile(), "FileHistory", 1);
    EXPECT_EQ(OpenProperties().historyTable()->rowCount(), 5);
}

TEST_F(HistoryPage, WithoutTheApplicationOrItsProfileGivesFiveRows) {
    CKWVariant nine(9, kVtInt);
    EXPECT_EQ(rowsWith(nine), 9);
    host.withhold(typeid(IProfile));
    EXPECT_EQ(OpenProperties().historyTable()->rowCount(), 5);
    host.withholdApplication();
    EXPECT_EQ(OpenProperties().historyTable()->rowCount(), 5);
}

TEST_F(HistoryPage, OnlyAnIntegerCountsAsTheMaximum) {
    CKWVariant real, text;
    real = 9.0;
    text = "9";
    EXPECT_EQ(rowsWith(CKWVariant(9, kVtInt)), 9);
    EXPECT_EQ(rowsWith(CKWVariant(3, kVtUInt16)), 3);
    EXPECT_EQ(rowsWith(real), 5);
    EXPECT_EQ(rowsWith(text), 5);
}

TEST_F(HistoryPage, TableIsSetUpAsTheCustomOneButTakesOneRow) {
    const OpenProperties dialog(kHistory);
    const QTableWidget& table = *dialog.historyTable();
    EXPECT_EQ(table.horizontalHeaderItem(0)->text(), QStringLiteral("Date"));
    EXPECT_EQ(table.horizontalHeaderItem(1)->text(), QStringLiteral("Reason"));
    EXPECT_EQ(table.columnWidth(0), 130);
    EXPECT_EQ(table.selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_EQ(table.selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(table.editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(table.focusPolicy(), Qt::NoFocus);
    EXPECT_FALSE(table.horizontalHeader()->sectionsClickable());
    EXPECT_FALSE(table.verticalHeader()->sectionsClickable());
    EXPECT_FALSE(table.isSortingEnabled());
    EXPECT_EQ(table.horizontalHeader()->defaultAlignment(), Qt::AlignLeft);
    EXPECT_EQ(int(table.verticalHeader()->defaultAlignment()), 132);
    EXPECT_TRUE(table.horizontalHeader()->stretchLastSection());
    EXPECT_EQ(table.horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
    EXPECT_EQ(table.horizontalHeader()->styleSheet(),
              QStringLiteral("QHeaderView::section { padding: 5px;}"));
    const auto* const label = dialog.control<QWidget>("historyTab")->findChild<QLabel*>();
    EXPECT_EQ(label->text(), QStringLiteral("File versions:"));
    EXPECT_LT(label->y(), table.y());
    EXPECT_NE(qobject_cast<CustomDelegate*>(table.itemDelegate()), nullptr);
}
