// The colour dialog of the host.
#include "standin/dialogs/color_dialog.h"
#include "standin/registry.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

using standin::ColorDialog;
using standin::PaletteGrid;

namespace {

struct ColorDialogTest : testing::Test {
    // Runs the host's function while `act` works on its dialog.
    int run(OdCmColor& color, const std::function<void(ColorDialog&)>& act) {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            if (auto* dialog = qobject_cast<ColorDialog*>(QApplication::activeModalWidget())) {
                timer.stop();
                act(*dialog);
            }
        });
        timer.start(10);
        return hostQtSetColorDialogTrueColor(color, false, OdCmColor(), OdCm::DialogTabs(3), nullptr);
    }
    static void press(ColorDialog& dialog, QDialogButtonBox::StandardButton button) {
        dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->button(button)->click();
    }
    static QColor colorOf(const OdCmColor& color) { return host_qt_ui::toQColor(color); }
};

TEST_F(ColorDialogTest, SwatchOfThePaletteIsTaken) {
    OdCmColor color;
    EXPECT_NE(run(color,
                  [](ColorDialog& dialog) {
                      auto* grid = dialog.findChild<PaletteGrid*>(QStringLiteral("paletteGrid"));
                      QTest::mouseClick(grid, Qt::LeftButton, Qt::NoModifier, QPoint(9, 9)); // number 1
                      press(dialog, QDialogButtonBox::Ok);
                  }),
              0);
    EXPECT_EQ(colorOf(color), QColor(Qt::red));
}

TEST_F(ColorDialogTest, AnyColourIsTaken) {
    OdCmColor color;
    EXPECT_NE(run(color,
                  [](ColorDialog& dialog) {
                      dialog.findChild<QColorDialog*>()->setCurrentColor(QColor(1, 2, 3));
                      press(dialog, QDialogButtonBox::Ok);
                  }),
              0);
    EXPECT_EQ(colorOf(color), QColor(1, 2, 3));
}

TEST_F(ColorDialogTest, CancelLeavesTheColour) {
    OdCmColor color;
    color.setRGB(10, 20, 30);
    EXPECT_EQ(run(color,
                  [](ColorDialog& dialog) {
                      dialog.findChild<QColorDialog*>()->setCurrentColor(QColor(1, 2, 3));
                      press(dialog, QDialogButtonBox::Cancel);
                  }),
              0);
    EXPECT_EQ(colorOf(color), QColor(10, 20, 30));
}

TEST_F(ColorDialogTest, PageOfThePresentColourIsInFront) {
    const ColorDialog any(QColor(1, 2, 3), OdCm::DialogTabs(3), nullptr);
    EXPECT_EQ(any.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->currentIndex(), 1);
    const ColorDialog red(Qt::red, OdCm::DialogTabs(3), nullptr);
    EXPECT_EQ(red.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->currentIndex(), 0);
    EXPECT_EQ(red.findChild<PaletteGrid*>(QStringLiteral("paletteGrid"))->current(), 1);
}

TEST_F(ColorDialogTest, HookAnswersInPlaceOfTheDialog) {
    standin::registry().colorDialog = [](OdCmColor& color, auto&&...) {
        color.setRGB(7, 8, 9);
        return 1;
    };
    OdCmColor color;
    EXPECT_EQ(hostQtSetColorDialogTrueColor(color, false, OdCmColor(), OdCm::DialogTabs(3), nullptr), 1);
    standin::registry().colorDialog = nullptr;
    EXPECT_EQ(colorOf(color), QColor(7, 8, 9));
}

} // namespace
