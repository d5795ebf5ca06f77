// The themes: their numbers, their colours, and the signal of a change.
#include "standin/registry.h"
#include "standin/themes/palettes.h"
#include "standin/themes/style_manager.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QStyle>
#include <gtest/gtest.h>

using namespace standin;
using hostui::qt::style::hostQtThemeChangeWatcher;

namespace {

struct ThemesTest : testing::Test {
    ~ThemesTest() override { QApplication::setPalette(before); }
    const QPalette before = QApplication::palette();
    StyleManager manager;
    QSignalSpy clicks{manager.themeWatcher(), &hostQtThemeChangeWatcher::clicked};
};

TEST_F(ThemesTest, ManagerServesTheHostFunction) {
    EXPECT_EQ(hostGetQtStyleManager(), &manager);
    EXPECT_EQ(hostGetQtStyleManager()->themeNumber(), 0);
}

TEST_F(ThemesTest, WatcherTellsAfterTheChange) {
    int seen = -1;
    QObject::connect(manager.themeWatcher(), &hostQtThemeChangeWatcher::clicked, &clicks,
                     [&] { seen = manager.themeNumber(); });
    manager.setTheme(kThemeLight);
    EXPECT_EQ(seen, 1);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), lightPalette().color(QPalette::Window));
}

TEST_F(ThemesTest, SettingTheSameThemeTellsNothing) {
    manager.setTheme(kThemeDark);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ThemesTest, SystemThemeGivesTheSystemsColours) {
    ASSERT_NE(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
    manager.setTheme(kThemeSystem);
    EXPECT_EQ(manager.themeNumber(), 2);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
}

TEST_F(ThemesTest, ShownLabelWithAStyleSheetTakesTheColoursOfTheNewTheme) {
    QWidget window;
    QLabel label(QStringLiteral("Default"), &window);
    label.setStyleSheet(QStringLiteral("font-weight: bold;"));
    window.show();
    EXPECT_EQ(label.palette().color(QPalette::WindowText), darkPalette().color(QPalette::WindowText));
    manager.setTheme(kThemeLight);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), lightPalette().color(QPalette::WindowText));
    EXPECT_EQ(label.styleSheet(), QStringLiteral("font-weight: bold;"));
}

TEST_F(ThemesTest, UnknownNumberIsTheSystemTheme) {
    manager.setTheme(77);
    EXPECT_EQ(manager.themeNumber(), 2);
}

struct ThemesPalette : testing::TestWithParam<bool> {
    const QPalette palette = GetParam() ? darkPalette() : lightPalette();
    double contrast(QPalette::ColorGroup group, QPalette::ColorRole text, QPalette::ColorRole back) const {
        return contrastRatio(palette.color(group, text), palette.color(group, back));
    }
};

TEST_P(ThemesPalette, TextIsReadable) {
    EXPECT_GE(contrast(QPalette::Active, QPalette::WindowText, QPalette::Window), 7);
    EXPECT_GE(contrast(QPalette::Active, QPalette::Text, QPalette::Base), 7);
    EXPECT_GE(contrast(QPalette::Active, QPalette::Text, QPalette::AlternateBase), 7);
    EXPECT_GE(contrast(QPalette::Active, QPalette::ButtonText, QPalette::Button), 7);
    EXPECT_GE(contrast(QPalette::Active, QPalette::ToolTipText, QPalette::ToolTipBase), 7);
    EXPECT_GE(contrast(QPalette::Active, QPalette::HighlightedText, QPalette::Highlight), 4.5);
    EXPECT_GE(contrast(QPalette::Active, QPalette::Link, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::Active, QPalette::LinkVisited, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::Active, QPalette::PlaceholderText, QPalette::Base), 4.5);
}

TEST_P(ThemesPalette, DisabledTextIsDimmerButVisible) {
    const double disabled = contrast(QPalette::Disabled, QPalette::WindowText, QPalette::Window);
    EXPECT_GE(disabled, 2.5);
    EXPECT_LT(disabled, contrast(QPalette::Active, QPalette::WindowText, QPalette::Window));
}

INSTANTIATE_TEST_SUITE_P(BothThemes, ThemesPalette, testing::Bool());

} // namespace
