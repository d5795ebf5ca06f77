// The Custom tab as it opens, and the deletion of rows.
#include "tests/dwgprops/dialog_driver.h"

#include <QHeaderView>

namespace {
class CustomPage : public DrawingProperties {
protected:
    static QStringList names(const QTableWidget& table) {
        QStringList result;
        for (const auto& [name, value] : shownProperties(table))
            result << name;
        return result;
    }
    static void select(QTableWidget& table, const std::vector<int>& rows) {
        table.clearSelection();
        for (const int row : rows)
            QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier,
                              table.visualItemRect(table.item(row, 0)).center());
    }
    // The picture of the value of the first row, chosen or not.
    QImage shownValue(const QString& value, bool isChosen) {
        setProperties({{"a", value}});
        OpenProperties dialog(kCustom);
        QTableWidget& table = *dialog.customTable();
        table.clearSelection();
        table.item(0, 1)->setSelected(isChosen);
        table.setCurrentItem(isChosen ? table.item(0, 1) : nullptr);
        return table.viewport()->grab(table.visualItemRect(table.item(0, 1))).toImage();
    }
    static int selectedRow(const QTableWidget& table) {
        const QModelIndexList rows = table.selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() : -1;
    }
};
} // namespace

TEST_F(CustomPage, TableAlwaysShowsAtLeastTenRows) {
    EXPECT_EQ(OpenProperties().customTable()->rowCount(), 10);
    setProperties(numbered(9));
    EXPECT_EQ(OpenProperties().customTable()->rowCount(), 10);
}

TEST_F(CustomPage, TableShowsTwelveRowsForTwelveEntries) {
    setProperties(numbered(12));
    EXPECT_EQ(OpenProperties().customTable()->rowCount(), 12);
}

TEST_F(CustomPage, EntriesKeepTheirOrderAndStayTogetherThoughSortingIsEnabled) {
    const Properties mixed{{"b", "1"}, {"a", "3"}, {"d", "2"}, {"c", "0"}};
    setProperties(mixed);
    const OpenProperties dialog(kCustom);
    EXPECT_TRUE(dialog.customTable()->isSortingEnabled());
    EXPECT_EQ(shownProperties(*dialog.customTable()), mixed);
}

TEST_F(CustomPage, AValueOfMegabytesIsShownByItsBeginningAndKeptWhole) {
    const QString words = QString("wide words ").repeated(200), megabytes = words.repeated(1000);
    for (const bool isChosen : {false, true})
        EXPECT_TRUE(shownValue(megabytes, isChosen) == shownValue(words.left(1000), isChosen));
    EXPECT_FALSE(shownValue(megabytes, false) == shownValue("x" + words, false));
    setProperties({{"a", megabytes}, {"b", "1"}});
    OpenProperties dialog(kCustom);
    const auto heightOf = [&](int row) {
        dialog.customTable()->resizeRowToContents(row);
        return dialog.customTable()->rowHeight(row);
    };
    EXPECT_EQ(heightOf(0), heightOf(1));
    dialog.customTable()->item(1, 1)->setText("2");
    dialog.click("okButton");
    EXPECT_EQ(properties(), (Properties{{"a", megabytes}, {"b", "2"}}));
}

TEST_F(CustomPage, PropertiesWithoutANameStayInTheDrawingAndOutOfTheTable) {
    setProperties({{"", "first"}, {"a", "1"}, {"", "second"}, {"b", "2"}, {"", "last"}});
    OpenProperties dialog(kCustom);
    EXPECT_EQ(shownProperties(*dialog.customTable()), (Properties{{"a", "1"}, {"b", "2"}}));
    dialog.customTable()->item(1, 1)->setText("3");
    select(*dialog.customTable(), {0});
    dialog.click("deleteButton");
    dialog.click("okButton");
    EXPECT_EQ(properties(), (Properties{{"b", "3"}}));
    QStringList values;
    const OdDbDatabaseSummaryInfoPtr info = summary();
    for (const auto& property : info->nameless)
        values << QString::fromStdWString(property.value.wide());
    EXPECT_EQ(values, QStringList({"first", "second", "last"}));
}

TEST_F(CustomPage, TableStandsBelowItsLabelAndBesideItsButtons) {
    const OpenProperties dialog(kCustom);
    const auto* const page = dialog.control<QWidget>("customTab");
    const QLabel* const label = page->findChild<QLabel*>();
    const QRect table = dialog.customTable()->geometry();
    EXPECT_EQ(label->text(), "Custom properties:");
    EXPECT_LT(label->geometry().bottom(), table.top());
    for (const auto& [name, text] : {std::pair("addButton", "Add"), std::pair("deleteButton", "Delete")}) {
        const auto* const button = dialog.control<QPushButton>(name);
        EXPECT_EQ(button->text(), text);
        EXPECT_GT(button->geometry().left(), table.right());
    }
    EXPECT_LT(dialog.control<QWidget>("addButton")->y(), dialog.control<QWidget>("deleteButton")->y());
    EXPECT_LT(dialog.control<QWidget>("deleteButton")->geometry().bottom(), table.center().y());
}

TEST_F(CustomPage, ClicksOnTheHeadersSortNothing) {
    const Properties mixed{{"b", "1"}, {"a", "3"}, {"c", "2"}};
    setProperties(mixed);
    const OpenProperties dialog(kCustom);
    QHeaderView* const header = dialog.customTable()->horizontalHeader();
    for (const int column : {0, 1})
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 20, header->height() / 2));
    EXPECT_EQ(shownProperties(*dialog.customTable()), mixed);
}

TEST_F(CustomPage, TableIsSetUpAsItsUsersKnowIt) {
    const OpenProperties dialog(kCustom);
    const QTableWidget& table = *dialog.customTable();
    EXPECT_EQ(table.horizontalHeaderItem(0)->text(), QStringLiteral("Name"));
    EXPECT_EQ(table.horizontalHeaderItem(1)->text(), QStringLiteral("Value"));
    EXPECT_EQ(table.columnWidth(0), 130);
    EXPECT_EQ(table.selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(table.editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_FALSE(table.hasAutoScroll());
    EXPECT_EQ(table.focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(table.horizontalHeader()->defaultAlignment(), Qt::AlignLeft);
    EXPECT_EQ(int(table.verticalHeader()->defaultAlignment()), 132);
    EXPECT_TRUE(table.horizontalHeader()->stretchLastSection());
    EXPECT_EQ(table.horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
    EXPECT_EQ(table.horizontalHeader()->styleSheet(),
              QStringLiteral("QHeaderView::section { padding: 5px;}"));
    EXPECT_FALSE(table.verticalHeader()->sectionsClickable());
    EXPECT_EQ(dialog.control<QWidget>("addButton")->focusPolicy(), Qt::ClickFocus);
    EXPECT_EQ(dialog.control<QWidget>("deleteButton")->focusPolicy(), Qt::ClickFocus);
}

TEST_F(CustomPage, DeleteIsOfferedOnlyForASelectedRowWithAName) {
    setProperties({{"a", "1"}, {"b", "2"}});
    const OpenProperties dialog(kCustom);
    dialog.customTable()->item(1, 0)->setText("");
    const auto* deleteButton = dialog.control<QWidget>("deleteButton");
    EXPECT_FALSE(deleteButton->isEnabled());
    select(*dialog.customTable(), {0});
    EXPECT_TRUE(deleteButton->isEnabled());
    select(*dialog.customTable(), {1});
    EXPECT_FALSE(deleteButton->isEnabled());
    dialog.customTable()->selectRow(5);
    EXPECT_FALSE(deleteButton->isEnabled());
}

TEST_F(CustomPage, DeletingOneRowInTheMiddleSelectsTheRowThatMovedUp) {
    setProperties(numbered(5));
    OpenProperties dialog(kCustom);
    select(*dialog.customTable(), {2});
    dialog.click("deleteButton");
    EXPECT_EQ(names(*dialog.customTable()), QStringList({"name 0", "name 1", "name 3", "name 4"}));
    EXPECT_EQ(selectedRow(*dialog.customTable()), 2);
    EXPECT_EQ(dialog.customTable()->rowCount(), 10);
    EXPECT_TRUE(dialog.control<QWidget>("deleteButton")->isEnabled());
}

TEST_F(CustomPage, DeletingSeveralRowsSelectsTheFirstRow) {
    setProperties(numbered(14));
    OpenProperties dialog(kCustom);
    select(*dialog.customTable(), {3, 1, 4});
    dialog.click("deleteButton");
    EXPECT_EQ(names(*dialog.customTable()).size(), 11);
    EXPECT_EQ(names(*dialog.customTable()).mid(0, 3), QStringList({"name 0", "name 2", "name 5"}));
    EXPECT_EQ(selectedRow(*dialog.customTable()), 0);
    EXPECT_EQ(dialog.customTable()->rowCount(), 11);
}

TEST_F(CustomPage, DeletingTheLastNamedRowDisablesDelete) {
    setProperties({{"a", "1"}});
    OpenProperties dialog(kCustom);
    select(*dialog.customTable(), {0});
    dialog.click("deleteButton");
    EXPECT_EQ(dialog.customTable()->rowCount(), 10);
    EXPECT_FALSE(dialog.control<QWidget>("deleteButton")->isEnabled());
}

TEST_F(CustomPage, NormalisingTrimsNamesAndValuesButKeepsAValueOfBlanks) {
    setProperties({{"a", "1"}});
    const OpenProperties dialog(kCustom);
    QTableWidget& table = *dialog.customTable();
    table.item(0, 0)->setText("  b ");
    EXPECT_EQ(table.item(0, 0)->text(), QStringLiteral("b"));
    table.item(0, 1)->setText("  2 ");
    EXPECT_EQ(table.item(0, 1)->text(), QStringLiteral("2"));
    table.item(0, 1)->setText("   ");
    EXPECT_EQ(table.item(0, 1)->text(), QStringLiteral("   "));
}

TEST_F(CustomPage, FillingDoesNotNormalise) {
    setProperties({{" a ", " 1 "}});
    EXPECT_EQ(shownProperties(*OpenProperties().customTable()), (Properties{{" a ", " 1 "}}));
}
