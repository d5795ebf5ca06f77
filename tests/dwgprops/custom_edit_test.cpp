// Editing the value of a custom property in its cell.
#include "tests/dwgprops/dialog_driver.h"

namespace {

class CustomEdit : public DrawingProperties {
protected:
    CustomEdit() {
        setProperties({{"a", "1"}, {"b", "2"}, {"c", "3"}});
        dialog = std::make_unique<OpenProperties>(kCustom);
        table = dialog->customTable();
    }
    // As the events of a double click arrive: one click, then the second press.
    void doubleClick(int row, int column) {
        const QPoint place = table->visualItemRect(table->item(row, column)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
        endDeferred();
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place);
    }
    // What was posted goes before the deletion of editors, which it may be about.
    static void endDeferred() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QLineEdit* editor() const {
        endDeferred();
        return table->findChild<QLineEdit*>();
    }
    void retype(const QString& text) {
        editor()->selectAll();
        QTest::keyClicks(editor(), text);
    }
    QString value(int row) const { return table->item(row, 1)->text(); }

    std::unique_ptr<OpenProperties> dialog;
    QTableWidget* table = nullptr;
};

} // namespace

TEST_F(CustomEdit, ADoubleClickOnTheValueEditsItWithTheFocus) {
    doubleClick(1, 1);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("2"));
    EXPECT_TRUE(editor()->hasFocus());
}

TEST_F(CustomEdit, ADoubleClickOnTheNameEditsTheValueToo) {
    doubleClick(1, 0);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("2"));
    EXPECT_EQ(table->cellWidget(1, 1), editor());
    EXPECT_EQ(table->currentColumn(), 1);
}

TEST_F(CustomEdit, ADoubleClickOnABlankRowEditsNothing) {
    const QPoint place(20, table->rowViewportPosition(6) + 5);
    ASSERT_EQ(table->rowAt(place.y()), 6);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(CustomEdit, ReturnTakesTheTextAndClosesTheEditor) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        doubleClick(1, 1);
        retype("new");
        QTest::keyClick(editor(), key);
        EXPECT_EQ(editor(), nullptr);
        EXPECT_EQ(value(1), QStringLiteral("new"));
        EXPECT_TRUE(dialog->isVisible()) << "Return in a cell must not press OK";
    }
}

TEST_F(CustomEdit, TheTextTakenIsTrimmedUnlessItIsAllBlanks) {
    doubleClick(0, 1);
    retype("  x ");
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_EQ(value(0), QStringLiteral("x"));
    doubleClick(0, 1);
    retype("  ");
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_EQ(value(0), QStringLiteral("  "));
}

TEST_F(CustomEdit, LeavingADoubleClickedEditorKeepsItsText) {
    doubleClick(1, 1);
    retype("kept");
    dialog->control<QWidget>("okButton")->setFocus();
    EXPECT_EQ(value(1), QStringLiteral("kept"));
}

TEST_F(CustomEdit, SelectingAnotherRowClosesTheEditor) {
    doubleClick(1, 1);
    retype("kept");
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualItemRect(table->item(2, 0)).center());
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(value(1), QStringLiteral("kept"));
}

TEST_F(CustomEdit, TabGoesToTheValueOfTheNextNamedRowAndFromTheLastToTheFirst) {
    doubleClick(1, 1);
    QTest::keyClick(editor(), Qt::Key_Tab);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("3"));
    EXPECT_EQ(table->currentRow(), 2);
    QTest::keyClick(editor(), Qt::Key_Tab);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("1"));
    EXPECT_EQ(table->currentRow(), 0);
}

TEST_F(CustomEdit, TextTypedInADoubleClickedEditorThatTabLeavesIsKept) {
    doubleClick(1, 1);
    retype("kept");
    QTest::keyClick(editor(), Qt::Key_Tab);
    EXPECT_EQ(value(1), QStringLiteral("kept"));
}

TEST_F(CustomEdit, TextTypedInAnEditorThatTabOpenedAndTabLeavesIsDropped) {
    doubleClick(0, 1);
    QTest::keyClick(editor(), Qt::Key_Tab);
    retype("dropped");
    QTest::keyClick(editor(), Qt::Key_Tab);
    EXPECT_EQ(value(1), QStringLiteral("2"));
    EXPECT_EQ(editor()->text(), QStringLiteral("3"));
}

TEST_F(CustomEdit, DeactivatingTheApplicationClosesTheEditor) {
    doubleClick(1, 1);
    retype("kept");
    QEvent deactivate(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &deactivate);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(value(1), QStringLiteral("kept"));
}

TEST_F(CustomEdit, DeactivatingTheApplicationBeforeAnyEditDoesNothing) {
    QEvent deactivate(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &deactivate);
    EXPECT_EQ(shownProperties(*table), (Properties{{"a", "1"}, {"b", "2"}, {"c", "3"}}));
}

TEST_F(CustomEdit, UpDownAndTabAreIgnoredByTheTableAndLeaveTheCurrentCell) {
    table->setCurrentCell(1, 1);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Tab}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        press.accept();
        // Past QWidget::event, which would move the focus on Tab before the table sees the key.
        struct Reach : QTableWidget {
            using QTableWidget::keyPressEvent;
        };
        (table->*static_cast<void (QTableWidget::*)(QKeyEvent*)>(&Reach::keyPressEvent))(&press);
        EXPECT_FALSE(press.isAccepted());
        EXPECT_EQ(table->currentRow(), 1);
    }
}

TEST_F(CustomEdit, OtherKeysDoNotMoveInTheTable) {
    table->setCurrentCell(1, 1);
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_C}) {
        QTest::keyClick(table, key);
        EXPECT_EQ(table->currentRow(), 1);
        EXPECT_EQ(table->currentColumn(), 1);
    }
}

TEST_F(CustomEdit, DeletingTheRowThatIsEditedIsHarmless) {
    doubleClick(1, 1);
    retype("gone");
    dialog->click("deleteButton");
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(shownProperties(*table), (Properties{{"a", "1"}, {"c", "3"}}));
}

TEST_F(CustomEdit, AnEditedValueReachesTheDrawing) {
    doubleClick(1, 1);
    retype("50% <b>%1</b>");
    QTest::keyClick(editor(), Qt::Key_Return);
    dialog->click("okButton");
    EXPECT_EQ(properties(), (Properties{{"a", "1"}, {"b", "50% <b>%1</b>"}, {"c", "3"}}));
}

TEST_F(CustomEdit, OkTakesTheTextOfAnEditorThatIsStillOpen) {
    doubleClick(1, 1);
    retype("late");
    dialog->click("okButton");
    EXPECT_EQ(properties()[1].second, QStringLiteral("late"));
}
