// Where dialogs come up, and how large.
#include "tests/e2e/workbench_fixture.h"

#include "workbench/window/dialog_places.h"

#include <QPushButton>
#include <QScreen>

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

TEST_F(DialogPlacesTest, NoWindowIsLargerThanTheScreen) {
    EXPECT_TRUE(screen().contains(bench->window()->geometry()));
    for (const char* command : {"QPREF", "DWGPROPS", "GROUP", "VERSIONS"})
        with(command, [&](QDialog& dialog) { EXPECT_TRUE(screen().contains(dialog.geometry())) << command; });
}

TEST_F(DialogPlacesTest, ADialogThatIsTooLargeIsMadeToFit) {
    QDialog dialog(bench->window());
    dialog.setMinimumSize(5000, 100);
    dialog.show();
    EXPECT_TRUE(screen().contains(dialog.geometry()));
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
