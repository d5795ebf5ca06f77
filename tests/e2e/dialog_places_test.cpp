// Where dialogs come up, and how large.
#include "host/documents.h"
#include "host/selection.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/database.h"
#include "tests/e2e/workbench_fixture.h"
#include "workbench/canvas/canvas.h"
#include "workbench/window/dialog_places.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

using workbench::placeOver;

TEST(PlaceOfADialog, IsOverTheMiddleOfTheWindow) {
    EXPECT_EQ(placeOver({100, 100, 801, 601}, {401, 301}, {0, 0, 1366, 768}), QRect(300, 250, 401, 301));
}

TEST(PlaceOfADialog, LiesWithinTheScreenWithItsFrame) {
    const QRect screen(1366, 0, 1366, 740);
    for (const QRect& window :
         {QRect(1300, -50, 300, 200), QRect(2600, 700, 300, 200), QRect(0, 0, 100, 100)}) {
        const QRect place = placeOver(window, {700, 500}, screen);
        EXPECT_EQ(place.size(), QSize(700, 500));
        EXPECT_TRUE(screen.contains(place.adjusted(-8, -32, 8, 8)));
    }
}

TEST(PlaceOfADialog, IsCutToTheScreen) {
    const QRect screen(0, 0, 1366, 768);
    const QRect place = placeOver({0, 0, 1366, 768}, {2000, 400}, screen);
    EXPECT_EQ(place, QRect(8, 184, 1350, 400));
    EXPECT_EQ(placeOver({0, 0, 1366, 768}, {400, 2000}, screen).height(), 768 - 40);
}

TEST(PlaceOfADialog, LeavesInSightWhatIsHighlighted) {
    const QRect screen(0, 0, 1366, 768), place(500, 300, 300, 200);
    EXPECT_EQ(workbench::placeBeside(QRect(), place, screen), place);
    EXPECT_EQ(workbench::placeBeside({0, 0, 100, 100}, place, screen), place) << "nothing of it is covered";
    for (const QRect& shown : {QRect(400, 200, 400, 400), QRect(800, 300, 560, 300),
                               QRect(10, 350, 1340, 400), QRect(10, 10, 1340, 400)}) {
        const QRect beside = workbench::placeBeside(shown, place, screen);
        EXPECT_FALSE(beside.intersects(shown)) << shown.left() << ' ' << shown.top();
        EXPECT_EQ(beside.size(), place.size());
        EXPECT_TRUE(screen.contains(beside.adjusted(-8, -32, 8, 8)));
    }
    EXPECT_EQ(workbench::placeBeside(screen, place, screen), place) << "no side has room";
}

struct DialogPlacesTest : WorkbenchFixture {
    QRect screen() { return bench->window()->screen()->availableGeometry(); }
    // What `look` sees of the dialog of a command, which is cancelled then.
    void with(const char* command, const std::function<void(QDialog&)>& look) {
        play({[&] { submit(command); },
              [&] {
                  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                  ASSERT_NE(dialog, nullptr) << command;
                  look(*dialog);
                  if (auto* cancel = dialog->findChild<QPushButton*>("cancelButton"))
                      cancel->click(); // Escape shows the group dialog again
              }});
    }
};

TEST_F(DialogPlacesTest, APageOfHelpComesUpOverTheWindow) {
    enter({"HELP"});
    const auto windows = QApplication::topLevelWidgets();
    const auto help = std::find_if(windows.begin(), windows.end(), [](const QWidget* widget) {
        return widget->objectName() == "helpWindow";
    });
    ASSERT_NE(help, windows.end());
    EXPECT_EQ((*help)->geometry(),
              workbench::placeOver(bench->window()->geometry(), (*help)->size(), screen()));
    (*help)->close();
}

TEST_F(DialogPlacesTest, ADialogThatIsTooLargeIsMadeToFit) {
    QDialog dialog(bench->window());
    dialog.setMinimumSize(5000, 100);
    dialog.show();
    EXPECT_TRUE(screen().contains(dialog.geometry()));
}

TEST_F(DialogPlacesTest, ADialogThatNeedsMoreThanTheScreenScrollsToAllOfIt) {
    QDialog dialog(bench->window());
    dialog.setMinimumSize(300, 3000);
    auto* layout = new QVBoxLayout(&dialog);
    QPushButton* last = nullptr;
    for (int i = 0; i < 40; ++i) {
        last = new QPushButton(QString::number(i), &dialog);
        last->setMinimumHeight(60);
        layout->addWidget(last);
    }
    dialog.show();
    EXPECT_TRUE(screen().contains(dialog.geometry()));
    dialog.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return dialog.isActiveWindow(); }));
    EXPECT_TRUE(last->visibleRegion().isEmpty());
    last->setFocus();
    EXPECT_TRUE(waitUntil([&] { return last->visibleRegion().boundingRect().height() == last->height(); }))
        << "what has the focus is scrolled into sight";
}

TEST_F(DialogPlacesTest, TheWheelChangesNothingThatIsOnlyScrolledPast) {
    QDialog dialog(bench->window());
    auto* layout = new QVBoxLayout(&dialog);
    auto* list = new QComboBox(&dialog);
    list->addItems({"a", "b", "c"});
    auto* number = new QSpinBox(&dialog);
    auto* other = new QLineEdit(&dialog);
    for (QWidget* each :
         {static_cast<QWidget*>(list), static_cast<QWidget*>(number), static_cast<QWidget*>(other)})
        layout->addWidget(each);
    dialog.show();
    const auto turn = [](QWidget* control) {
        QWheelEvent event(QPointF(5, 5), control->mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(control, &event);
    };
    other->setFocus();
    turn(list);
    turn(number);
    turn(number->findChild<QLineEdit*>());
    EXPECT_EQ(list->currentIndex(), 0);
    EXPECT_EQ(number->value(), 0);
    number->setValue(5);
    dialog.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return dialog.isActiveWindow(); }));
    list->setFocus();
    turn(list);
    number->setFocus();
    turn(number);
    EXPECT_EQ(list->currentIndex(), 1) << "what has the focus follows the wheel";
    EXPECT_EQ(number->value(), 4);
}

TEST_F(DialogPlacesTest, APlaceThatWasGivenIsRememberedOverARestart) {
    const QPoint put(screen().left() + 30, screen().top() + 60);
    with("DWGPROPS", [&](QDialog& dialog) { dialog.move(put); });
    for (int run = 0; run < 2; ++run) {
        with("DWGPROPS", [&](QDialog& dialog) { EXPECT_EQ(dialog.pos(), put) << "run " << run; });
        restart();
    }
    with("QPREF", [&](QDialog& dialog) { EXPECT_NE(dialog.pos(), put) << "each has its own"; });
}

TEST_F(DialogPlacesTest, ADialogGivesWayToWhatIsHighlightedUnlessItsUserHasPutIt) {
    QRect marks;
    workbench::DialogPlaces places(*bench->window());
    places.shown = [&] { return marks; };
    for (const bool isPut : {false, true}) {
        QDialog dialog(bench->window());
        dialog.setModal(true);
        dialog.resize(200, 150);
        dialog.show();
        if (isPut)
            dialog.move(screen().topLeft() + QPoint(60, 80));
        const QRect before = dialog.geometry();
        marks = QRect(before.topLeft(), QSize(40, 40));
        places.keepMarksInSight();
        EXPECT_EQ(dialog.geometry(), isPut ? before : workbench::placeBeside(marks, before, screen()));
        EXPECT_EQ(dialog.geometry() == before, isPut);
        marks = {};
    }
}

TEST_F(DialogPlacesTest, WhatIsHighlightedWhileADialogIsOpenMovesIt) {
    const OdDbDatabasePtr drawing = HostDocManager()->currentDocument()->database();
    const auto space =
        odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    OdDbEntityPtr middle;
    for (const double x : {0.0, 50.0, 100.0}) { // short lines, so that the one in the middle covers little
        const OdDbLinePtr line(new OdDbLine);
        line->setStartPoint({x, 0, 0});
        line->setEndPoint({x + 1, 1, 0});
        space->appendOdDbEntity(line.get());
        if (x == 50)
            middle = line;
    }
    enter({"ZOOM", "Extents"});
    const workbench::Canvas& canvas = bench->window()->drawingArea();
    QDialog dialog(bench->window());
    dialog.setModal(true);
    dialog.resize(200, 150);
    dialog.show();
    dialog.move(canvas.mapToGlobal(canvas.rect().center()) - QPoint(100, 75));
    dialog.setProperty("placeOfDialog", dialog.geometry().topLeft()); // as if it had come up there
    const QRect before = dialog.geometry();
    middle->highlight(true);
    HostUpdateDisplay();
    ASSERT_TRUE(before.intersects(canvas.placeOfMarks())) << "else there is nothing to make room for";
    EXPECT_FALSE(dialog.geometry().intersects(canvas.placeOfMarks()));
}

TEST_F(DialogPlacesTest, APlaceThatNobodyGaveIsNotRemembered) {
    QByteArray key;
    with("DWGPROPS", [&](QDialog& dialog) { key = dialog.objectName().toUtf8(); });
    CXString left;
    ASSERT_TRUE(readValue(openChild(appService<IProfile>().get(), "Dialogs").get(), key.constData(), &left))
        << key.constData();
    EXPECT_FALSE(QString(left.c_str()).contains("at")) << left.c_str();
}

TEST_F(DialogPlacesTest, SizesAreRememberedForEachDialogOverARestart) {
    QSize wanted;
    with("QPREF", [&](QDialog& dialog) {
        wanted = dialog.size() + QSize(40, 0);
        dialog.resize(wanted);
        wanted = dialog.size();
    });
    QSize other;
    with("GROUP", [&](QDialog& dialog) { other = dialog.size(); });
    restart();
    with("QPREF", [&](QDialog& dialog) { EXPECT_EQ(dialog.size(), wanted); });
    with("GROUP", [&](QDialog& dialog) { EXPECT_EQ(dialog.size(), other); });
}

} // namespace
