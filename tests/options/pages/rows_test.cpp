// The option row: its text, its look, where the editor stands and its double click.
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "options/store/tree_item.h"
#include "tests/support/fixture_host.h"
#include "tests/support/test_habits.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class Row : public testing::Test {
protected:
    QPrefWidget* make(const QString& text, int position, QWidget* editor = nullptr, bool cut = false,
                      int doubleClick = 1) {
        item.setText(0, text);
        row = std::make_unique<QPrefWidget>(&item, position, editor, cut, doubleClick, nullptr);
        return row.get();
    }

    QGridLayout* grid() const { return static_cast<QGridLayout*>(row->layout()); }
    QWidget* at(int column) const {
        QLayoutItem* place = grid()->itemAtPosition(0, column);
        return place ? place->widget() : nullptr;
    }

    FixtureHost host;
    TreeItem item;
    std::unique_ptr<QPrefWidget> row;
};

TEST_F(Row, ShowsOnlyWhatStandsBeforeTheAngleBracketWhenToldToCut) {
    EXPECT_EQ(make("Crosshair colour <font color=\"red\">sample</font>", 0, nullptr, true)->label()->text(),
              "Crosshair colour");
}

TEST_F(Row, KeepsTheWholeTextWithoutAnAngleBracketWhenToldToCut) {
    EXPECT_EQ(make("Crosshair colour", 0, nullptr, true)->label()->text(), "Crosshair colour");
}

TEST_F(Row, KeepsTheAngleBracketWhenNotToldToCut) {
    EXPECT_EQ(make("Size <mm>", 1)->label()->text(), "Size <mm>");
}

TEST_F(Row, ShowsNothingOfATextThatBeginsWithTheAngleBracketWhenToldToCut) {
    EXPECT_EQ(make("<b>Size</b>", 1, nullptr, true)->label()->text(), "");
}

TEST_F(Row, TrimsTheLabel) { EXPECT_EQ(make("  Snap mode\t", 1)->label()->text(), "Snap mode"); }

TEST_F(Row, ToolTipIsTheCutAndTrimmedTextOfTheLabel) {
    EXPECT_EQ(make("  Colour of grips <more>", 0, nullptr, true)->label()->toolTip(), "Colour of grips");
}

TEST_F(Row, TakesTheTextOutOfTheItem) {
    make("Snap mode", 1);
    EXPECT_EQ(item.text(0), "");
}

TEST_F(Row, IsTransparentThroughItsOwnStyleSheet) {
    make("Snap mode", 1);
    EXPECT_EQ(row->objectName(), "QPrefWidget");
    EXPECT_EQ(
        row->styleSheet(),
        "QWidget#QPrefWidget { background-color: transparent; }QWidget#QPrefWidget QLabel { "
        "background-color: transparent; } QWidget#QPrefWidget QCheckBox,QWidget#QPrefWidget QRadioButton {"
        "    background-color: transparent;    padding: 0px;    margin: 0px;    spacing: 5px;}");
}

TEST_F(Row, HasItsOwnMarginsAndSpacing) {
    make("Snap mode", 1);
    EXPECT_EQ(grid()->contentsMargins(), QMargins(0, 2, 0, 2));
    EXPECT_EQ(grid()->horizontalSpacing(), 5);
    EXPECT_EQ(grid()->verticalSpacing(), 5);
}

TEST_F(Row, PlacesTheEditorBeforeTheLabelAtPositionZero) {
    auto* editor = new QCheckBox;
    make("Snap mode", 0, editor);
    EXPECT_EQ(at(0), editor);
    EXPECT_EQ(at(1), row->label());
    EXPECT_EQ(grid()->columnStretch(0), 0);
    EXPECT_EQ(grid()->columnStretch(1), 0);
    EXPECT_EQ(grid()->columnStretch(2), 1);
    EXPECT_EQ(editor->parentWidget(), row.get());
}

TEST_F(Row, KeepsThePlaceOfAMissingEditorAtPositionZero) {
    make("Snap mode", 0);
    EXPECT_EQ(at(0), nullptr);
    EXPECT_EQ(at(1), row->label());
}

TEST_F(Row, PlacesTheEditorBehindTheLabelAtPositionOne) {
    auto* editor = new QCheckBox;
    make("Snap mode", 1, editor);
    EXPECT_EQ(at(0), row->label());
    EXPECT_EQ(at(1), editor);
    EXPECT_EQ(grid()->columnStretch(0), 0);
    EXPECT_EQ(grid()->columnStretch(1), 0);
    EXPECT_EQ(grid()->columnCount(), 2);
}

TEST_F(Row, DoesNotPlaceTheEditorAtAnyOtherPosition) {
    QCheckBox editor;
    make("Snap mode", 2, &editor);
    EXPECT_EQ(at(0), row->label());
    EXPECT_EQ(at(1), nullptr);
    EXPECT_EQ(grid()->columnStretch(1), 1);
    EXPECT_EQ(editor.parentWidget(), nullptr);
}

TEST_F(Row, LabelAsksForItsMenuAndGrowsOnlySideways) {
    make("Snap mode", 1);
    EXPECT_EQ(row->label()->contextMenuPolicy(), Qt::CustomContextMenu);
    EXPECT_EQ(row->label()->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    EXPECT_EQ(row->label()->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    EXPECT_EQ(row->label()->parentWidget(), row.get());
}

TEST_F(Row, ToolTipIsWhiteInTheDarkTheme) {
    host.setTheme(0);
    EXPECT_EQ(make("Snap mode", 1)->label()->styleSheet(), "QToolTip { background-color: #ffffff;}");
}

TEST_F(Row, ToolTipIsGreyInTheLightTheme) {
    host.setTheme(1);
    EXPECT_EQ(make("Snap mode", 1)->label()->styleSheet(), "QToolTip { background-color: #f5f5f5;}");
}

TEST_F(Row, LabelsOwnStyleSheetComesBackInAnyOtherTheme) {
    host.setTheme(0);
    make("Snap mode", 1);
    for (const int theme : {2, -1}) {
        host.setTheme(theme);
        row->applyToolTipStyle();
        EXPECT_EQ(row->label()->styleSheet(), "");
        host.setTheme(1);
        row->applyToolTipStyle();
        EXPECT_EQ(row->label()->styleSheet(), "QToolTip { background-color: #f5f5f5;}");
    }
}

TEST_F(Row, ToolTipHasTheColoursOfTheThemeWhereTheHostWantsSo) {
    const TestHabits habits({DialogHabit::ToolTipsInThemeColours});
    for (const int theme : {0, 1, 2}) {
        host.setTheme(theme);
        EXPECT_EQ(make("Snap mode", 1)->label()->styleSheet(), "") << theme;
    }
}

TEST_F(Row, LeftDoubleClickOnTheLabelIsTold) {
    make("Snap mode", 1);
    QSignalSpy spy(row->label(), &ClickableLabel::doubleClicked);
    QTest::mouseDClick(row->label(), Qt::LeftButton);
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(Row, DoubleClickWithAnotherButtonIsNotTold) {
    make("Snap mode", 1);
    QSignalSpy spy(row->label(), &ClickableLabel::doubleClicked);
    QTest::mouseDClick(row->label(), Qt::RightButton);
    QTest::mouseDClick(row->label(), Qt::MiddleButton);
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(Row, DoubleClickIsNotToldWhenSwitchedOff) {
    make("Snap mode", 1, nullptr, false, 0);
    QSignalSpy spy(row->label(), &ClickableLabel::doubleClicked);
    QTest::mouseDClick(row->label(), Qt::LeftButton);
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(Row, AnyNumberButZeroSwitchesTheDoubleClickOn) {
    make("Snap mode", 1, nullptr, false, -7);
    QSignalSpy spy(row->label(), &ClickableLabel::doubleClicked);
    QTest::mouseDClick(row->label(), Qt::LeftButton);
    EXPECT_EQ(spy.count(), 1);
}

// Counts the double clicks that a widget is offered.
class DoubleClicks : public QObject {
public:
    explicit DoubleClicks(QWidget* watched) { watched->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::MouseButtonDblClick;
        return false;
    }
};

TEST_F(Row, DoubleClickGoesOnToTheRowAfterItWasTold) {
    make("Snap mode", 1);
    const DoubleClicks offered(row.get());
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    bool openWhenTold = false; // not yet turned down by the label's base class
    QObject::connect(row->label(), &ClickableLabel::doubleClicked, row.get(),
                     [&] { openWhenTold = event.isAccepted(); });
    QCoreApplication::sendEvent(row->label(), &event);
    EXPECT_TRUE(openWhenTold);
    EXPECT_EQ(offered.count, 1);
    QTest::mouseDClick(row->label(), Qt::RightButton);
    EXPECT_EQ(offered.count, 2) << "also one that isn't told";
}

TEST_F(Row, ADoubleClickThatDeletesTheLabelEndsThere) {
    make("Snap mode", 1);
    const DoubleClicks offered(row.get());
    ClickableLabel* label = row->label();
    QObject::connect(label, &ClickableLabel::doubleClicked, [label] { delete label; });
    const QPointF centre = label->rect().center();
    QMouseEvent event(QEvent::MouseButtonDblClick, centre, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(label, &event);
    EXPECT_EQ(row->findChild<ClickableLabel*>(), nullptr);
    EXPECT_TRUE(event.isAccepted());
    EXPECT_EQ(offered.count, 0);
}

TEST_F(Row, LabelIsTheFirstLabelBelowTheRow) {
    make("Snap mode", 0, new QCheckBox);
    EXPECT_EQ(row->findChild<QLabel*>(), row->label());
    EXPECT_EQ(row->label()->objectName(), "label");
}

} // namespace
