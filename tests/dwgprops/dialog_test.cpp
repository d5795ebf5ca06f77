// The dialog itself: its title, tabs and buttons, and what OK and Cancel do to the drawing.
#include "tests/dwgprops/dialog_driver.h"

#include "dwgprops/file_history.h"
#include "standin/themes/style_manager.h"

#include <QFile>
#include <QTabBar>
#include <QToolButton>

namespace {
using PropertiesDialog = DrawingProperties;

// Hangs something on the class of the database that is no history.
class WrongExtension {
public:
    WrongExtension() { OdDbDatabase::desc()->addX(OdRxObject::desc(), new OdResBuf); }
    ~WrongExtension() { OdDbDatabase::desc()->delX(OdRxObject::desc()); }
    WrongExtension(const WrongExtension&) = delete;
    WrongExtension& operator=(const WrongExtension&) = delete;
};
// The size of letters on a plain desktop; without one Qt takes larger ones, with which the dialog grows.
class DesktopFont {
public:
    DesktopFont() : former(QApplication::font()) {
        QFont font = former;
        font.setPointSize(9);
        QApplication::setFont(font);
    }
    ~DesktopFont() { QApplication::setFont(former); }
    DesktopFont(const DesktopFont&) = delete;
    DesktopFont& operator=(const DesktopFont&) = delete;

private:
    QFont former;
};
} // namespace

TEST_F(PropertiesDialog, TitleOfASavedDrawingIsItsFileName) {
    drawing->setFilename(L"/some/where/house %1 %2.dxf");
    host.document.shownTitle = L"not this";
    EXPECT_EQ(OpenProperties().windowTitle(), QStringLiteral("Properties: house %1 %2.dxf"));
}

TEST_F(PropertiesDialog, TitleOfAnUnsavedDrawingIsTheTitleTextOfTheDocument) {
    host.document.shownTitle = L"Drawing7 %1";
    EXPECT_EQ(OpenProperties().windowTitle(), QStringLiteral("Properties: Drawing7 %1"));
}

TEST_F(PropertiesDialog, HasFiveTabsInOrderAndTheAmpersandAfterCustom) {
    const OpenProperties dialog;
    QStringList labels;
    for (int i = 0; i < dialog.tabs()->count(); ++i)
        labels << dialog.tabs()->tabText(i);
    EXPECT_EQ(labels, QStringList({"General", "Summary", "Statistics", "Custom&", "History"}));
}

TEST_F(PropertiesDialog, OpensAtItsSizeOnTheFirstTabWithTheFocusOnOk) {
    const OpenProperties dialog;
    EXPECT_EQ(dwgProps(nullptr).size(), QSize(400, 450));
    EXPECT_FALSE(dialog.windowFlags() & Qt::WindowContextHelpButtonHint);
    EXPECT_EQ(dialog.tabs()->currentIndex(), 0);
    EXPECT_TRUE(dialog.control<QWidget>("okButton")->hasFocus());
}

TEST_F(PropertiesDialog, ButtonsFollowTheTabsInTabOrder) {
    const OpenProperties dialog;
    QStringList order;
    for (const QWidget* w = dialog.nextInFocusChain(); w != &dialog; w = w->nextInFocusChain())
        if (QStringList{"tabs", "titleEdit", "okButton", "cancelButton", "helpButton"}.contains(
                w->objectName()))
            order << w->objectName();
    EXPECT_EQ(order, QStringList({"tabs", "titleEdit", "okButton", "cancelButton", "helpButton"}));
}

TEST_F(PropertiesDialog, ButtonsStandAtTheRightBelowTheTabs) {
    const OpenProperties dialog;
    int right = dialog.width() / 3;
    for (const auto& [name, text] : {std::pair("okButton", "OK"), std::pair("cancelButton", "Cancel"),
                                     std::pair("helpButton", "Help")}) {
        const auto* const button = dialog.control<QPushButton>(name);
        EXPECT_EQ(button->text(), text);
        EXPECT_GT(button->geometry().left(), right) << name;
        EXPECT_GT(button->geometry().top(), dialog.tabs()->geometry().bottom()) << name;
        right = button->geometry().right();
    }
    EXPECT_LT(dialog.width() - right, 20);
}

TEST_F(PropertiesDialog, TabsGoFromOneToTheNextWithTheirOwnPages) {
    const OpenProperties dialog;
    const char* const pages[] = {"generalTab", "summaryTab", "statisticTab", "customTab", "historyTab"};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(dialog.tabs()->widget(i)->objectName(), pages[i]);
}

TEST_F(PropertiesDialog, AllFiveTabsShowAtItsSizeInEveryTheme) {
    standin::StyleManager styles;
    const DesktopFont font;
    for (const int theme : {standin::kThemeLight, standin::kThemeDark}) {
        styles.setTheme(theme);
        const OpenProperties dialog;
        EXPECT_EQ(dialog.size(), QSize(400, 450));
        const auto* const bar = dialog.tabs()->findChild<QTabBar*>();
        EXPECT_TRUE(bar->rect().contains(bar->tabRect(4))) << "theme " << theme;
        EXPECT_LE(bar->mapTo(dialog.tabs(), bar->tabRect(4).topRight()).x(), dialog.tabs()->width());
        for (const QToolButton* arrow : bar->findChildren<QToolButton*>())
            EXPECT_FALSE(arrow->isVisible()) << "theme " << theme;
    }
}

TEST_F(PropertiesDialog, AllFiveTabsShowWithLargeLettersToo) {
    const OpenProperties dialog;
    const auto* const bar = dialog.tabs()->findChild<QTabBar*>();
    ASSERT_GT(bar->sizeHint().width(), dialog.tabs()->width()) << "they would have more room if they could";
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(bar->rect().contains(bar->tabRect(i))) << i;
        const int text = bar->fontMetrics().size(Qt::TextShowMnemonic, bar->tabText(i)).width();
        EXPECT_GE(bar->tabRect(i).width(), text) << i;
    }
}

TEST_F(PropertiesDialog, ReturnInAnEditPressesOkAndEscapePressesCancel) {
    OpenProperties dialog(kSummary);
    dialog.type("titleEdit", "typed");
    QTest::keyClick(dialog.control<QLineEdit>("titleEdit"), Qt::Key_Return);
    EXPECT_EQ(dialog.ended, QDialog::Accepted);
    EXPECT_EQ(summary()->getTitle(), OdString(L"typed"));
    OpenProperties again(kSummary);
    again.type("titleEdit", "typed anew");
    QTest::keyClick(again.control<QLineEdit>("titleEdit"), Qt::Key_Escape);
    EXPECT_FALSE(again.isVisible());
    EXPECT_EQ(summary()->getTitle(), OdString(L"typed"));
}

TEST_F(PropertiesDialog, HelpShowsItsTopic) {
    OpenProperties dialog;
    dialog.click("helpButton");
    EXPECT_EQ(host.helpTopics(), QStringList{"IDH_DWGProps"});
}

TEST_F(PropertiesDialog, HelpWithoutAHelpServiceDoesNothing) {
    standin::registry().help = nullptr;
    OpenProperties dialog;
    dialog.click("helpButton");
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(PropertiesDialog, OtherModulesInsertAndRemoveTabs) {
    OpenProperties dialog;
    auto* const page = new QWidget;
    EXPECT_EQ(dialog.insertTab(1, page, QStringLiteral("More")), 1);
    EXPECT_EQ(dialog.tabs()->widget(1), page);
    EXPECT_EQ(dialog.tabs()->tabText(1), QStringLiteral("More"));
    dialog.removeTab(1);
    EXPECT_EQ(dialog.tabs()->count(), 5);
    EXPECT_EQ(dialog.tabs()->indexOf(page), -1);
    delete page;
}

TEST_F(PropertiesDialog, OkWithNoChangesStillWritesAllFieldsAndEntries) {
    setProperties({{"b", "1"}, {"a", "2"}});
    OpenProperties dialog;
    // What is in the drawing now is what OK must replace, though nothing was edited in the dialog.
    const OdDbDatabaseSummaryInfoPtr other = summary();
    for (const auto set : {&OdDbDatabaseSummaryInfo::setTitle, &OdDbDatabaseSummaryInfo::setSubject,
                           &OdDbDatabaseSummaryInfo::setAuthor, &OdDbDatabaseSummaryInfo::setKeywords,
                           &OdDbDatabaseSummaryInfo::setComments, &OdDbDatabaseSummaryInfo::setHyperlinkBase})
        (other.get()->*set)(L"other");
    other->setCustomSummaryInfo(0, L"other", L"other");
    oddbPutSummaryInfo(other.get());
    dialog.click("okButton");
    const OdDbDatabaseSummaryInfoPtr info = summary();
    for (const auto get : {&OdDbDatabaseSummaryInfo::getTitle, &OdDbDatabaseSummaryInfo::getSubject,
                           &OdDbDatabaseSummaryInfo::getAuthor, &OdDbDatabaseSummaryInfo::getKeywords,
                           &OdDbDatabaseSummaryInfo::getComments, &OdDbDatabaseSummaryInfo::getHyperlinkBase})
        EXPECT_EQ((info.get()->*get)(), OdString());
    EXPECT_EQ(properties(), (Properties{{"b", "1"}, {"a", "2"}}));
    EXPECT_EQ(dialog.ended, QDialog::Accepted);
}

TEST_F(PropertiesDialog, OkWritesTheSixFieldsAsTyped) {
    OpenProperties dialog(kSummary);
    dialog.type("titleEdit", " A %1 <b>house</b> ");
    dialog.type("subjectEdit", "subject");
    dialog.type("authorEdit", "author");
    dialog.type("keywordsEdit", "one, two");
    dialog.type("hyperlinkEdit", "http://a.b/");
    auto* const comments = dialog.control<QWidget>("commentsEdit");
    QTest::keyClicks(comments, "first");
    QTest::keyClick(comments, Qt::Key_Return);
    QTest::keyClicks(comments, "second");
    dialog.click("okButton");
    EXPECT_EQ(summary()->getTitle(), OdString(L" A %1 <b>house</b> "));
    EXPECT_EQ(summary()->getSubject(), OdString(L"subject"));
    EXPECT_EQ(summary()->getAuthor(), OdString(L"author"));
    EXPECT_EQ(summary()->getKeywords(), OdString(L"one, two"));
    EXPECT_EQ(summary()->getComments(), OdString(L"first\nsecond"));
    EXPECT_EQ(summary()->getHyperlinkBase(), OdString(L"http://a.b/"));
}

TEST_F(PropertiesDialog, OkLeavesLastSavedByAndRevisionAlone) {
    const OdDbDatabaseSummaryInfoPtr info = summary();
    info->setLastSavedBy(L"anna");
    info->setRevisionNumber(L"7");
    oddbPutSummaryInfo(info.get());
    OpenProperties dialog(kSummary);
    dialog.type("titleEdit", "A house");
    dialog.click("okButton");
    ASSERT_EQ(summary()->getTitle(), OdString(L"A house"));
    EXPECT_EQ(summary()->getLastSavedBy(), OdString(L"anna"));
    EXPECT_EQ(summary()->getRevisionNumber(), OdString(L"7"));
}

TEST_F(PropertiesDialog, CancelChangesNeitherRecordNorDrawing) {
    setProperties({{"a", "1"}});
    OpenProperties dialog(kSummary);
    dialog.type("titleEdit", "A house");
    dialog.customTable()->item(0, 1)->setText("2");
    dialog.click("cancelButton");
    EXPECT_EQ(dialog.ended, QDialog::Rejected);
    EXPECT_EQ(summary()->getTitle(), OdString());
    EXPECT_EQ(properties(), (Properties{{"a", "1"}}));
}

TEST_F(PropertiesDialog, OkAfterAllRowsAreDeletedRemovesEveryEntry) {
    setProperties(numbered(12));
    OpenProperties dialog(kCustom);
    dialog.customTable()->selectAll();
    dialog.click("deleteButton");
    dialog.click("okButton");
    EXPECT_EQ(properties(), Properties());
}

TEST_F(PropertiesDialog, OkRemovesSurplusEntriesFromTheEnd) {
    setProperties({{"a", "1"}, {"b", "2"}, {"c", "3"}, {"d", "4"}});
    OpenProperties dialog(kCustom);
    dialog.customTable()->selectRow(1);
    dialog.click("deleteButton");
    dialog.click("okButton");
    EXPECT_EQ(properties(), (Properties{{"a", "1"}, {"c", "3"}, {"d", "4"}}));
}

TEST_F(PropertiesDialog, RowsAreReadByPositionSoAnEmptyNameInFrontIsWrittenWithAnEmptyKey) {
    setProperties({{"a", "1"}, {"b", "2"}, {"c", "3"}});
    OpenProperties dialog;
    dialog.customTable()->item(0, 0)->setText("");
    dialog.click("okButton");
    EXPECT_EQ(properties(), (Properties{{"b", "2"}}));
    ASSERT_EQ(summary()->nameless.size(), 1U);
    EXPECT_EQ(summary()->nameless[0].value, OdString(L"1"));
}

TEST_F(PropertiesDialog, ARowWithAValueButNoNameIsNeitherCountedNorWritten) {
    setProperties({{"a", "1"}});
    OpenProperties dialog;
    dialog.customTable()->setItem(1, 1, new QTableWidgetItem("2"));
    dialog.customTable()->item(0, 1)->setText("written");
    dialog.click("okButton");
    EXPECT_EQ(properties(), (Properties{{"a", "written"}}));
    EXPECT_TRUE(summary()->nameless.empty());
}

TEST_F(PropertiesDialog, KeysAreTrimmedOnTheWayAndValuesAreNot) {
    setProperties({{" a\t", " 1 "}});
    OpenProperties dialog;
    dialog.click("okButton");
    EXPECT_EQ(properties(), (Properties{{"a", " 1 "}}));
}

TEST_F(PropertiesDialog, OddNamesAndValuesFromTheFileComeBackUnchanged) {
    const QString longName(256, 'n');
    const Properties odd{{"%1", "%2 %1"},       {"<b>bold</b>", "<img src=x>&amp;"},
                         {"a\nb", "c\n\td\n"},  {"same", "1"},
                         {"same", "2"},         {longName, longName},
                         {"forbidden:*?", "|"}, {QString(255, 'm'), ""}};
    setProperties(odd);
    OpenProperties dialog(kCustom);
    EXPECT_EQ(shownProperties(*dialog.customTable()), odd);
    setProperties(numbered(int(odd.size())));
    ASSERT_NE(properties(), odd) << "what OK has to replace";
    dialog.click("okButton");
    EXPECT_EQ(properties(), odd);
}

TEST_F(PropertiesDialog, TenThousandPropertiesComeAndGo) {
    setProperties(numbered(10000));
    OpenProperties dialog(kCustom);
    EXPECT_EQ(dialog.customTable()->rowCount(), 10000);
    dialog.customTable()->item(9999, 1)->setText("last");
    dialog.click("okButton");
    const Properties written = properties();
    ASSERT_EQ(written.size(), 10000U);
    EXPECT_EQ(written[0], numbered(1)[0]);
    EXPECT_EQ(written[9999], (std::pair<QString, QString>("name 9999", "last")));
}

TEST_F(PropertiesDialog, AFileThatIsGoneStillOpens) {
    QTemporaryDir folder;
    const QString path = folder.filePath("house.dxf");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    drawing->setFilename(OdString(path.toStdWString()));
    ASSERT_TRUE(QFile::remove(path));
    const OpenProperties dialog;
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Properties: house.dxf"));
    EXPECT_EQ(dialog.control<QLabel>("sizeLabel")->text(), QString());
    EXPECT_EQ(dialog.control<QLabel>("accessedLabel")->text(), QString());
}

TEST_F(PropertiesDialog, AFailureInTheConstructorReleasesWhatWasBuilt) {
    const int before = QApplication::allWidgets().size();
    const long references = drawing->numRefs();
    const WrongExtension wrong;
    EXPECT_THROW(OpenProperties(), OdError_NotThatKindOfClass);
    EXPECT_EQ(QApplication::allWidgets().size(), before);
    EXPECT_EQ(drawing->numRefs(), references);
}

TEST_F(PropertiesDialog, TheDialogDropsItsReferencesWhenItGoes) {
    const long references = drawing->numRefs();
    {
        const OpenProperties dialog;
        EXPECT_GT(drawing->numRefs(), references) << "while it is open it holds the drawing";
    }
    EXPECT_EQ(drawing->numRefs(), references);
}
