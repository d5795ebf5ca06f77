// The themes: their numbers, their colours, and the signal of a change.
#include "standin/registry.h"
#include "standin/themes/house_style.h"
#include "standin/themes/palettes.h"
#include "standin/themes/style_manager.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QStyleFactory>
#include <QToolButton>
#include <QToolTip>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>

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
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipText), lightPalette().color(QPalette::ToolTipText));
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

// Each role of the palette, active and disabled.
std::string colorsOf(const QPalette& palette) {
    std::string text;
    for (const auto group : {QPalette::Active, QPalette::Disabled}) {
        for (const auto role : {QPalette::Window,
                                QPalette::Base,
                                QPalette::AlternateBase,
                                QPalette::Button,
                                QPalette::WindowText,
                                QPalette::Text,
                                QPalette::ButtonText,
                                QPalette::BrightText,
                                QPalette::PlaceholderText,
                                QPalette::Light,
                                QPalette::Midlight,
                                QPalette::Mid,
                                QPalette::Dark,
                                QPalette::Shadow,
                                QPalette::Highlight,
                                QPalette::HighlightedText,
                                QPalette::Link,
                                QPalette::LinkVisited,
                                QPalette::ToolTipBase,
                                QPalette::ToolTipText})
            text += palette.color(group, role).name().mid(1).toStdString() + " ";
        text += "\n";
    }
    return text;
}

TEST(ThemesColours, ErrorsCanBeReadInBothThemes) {
    for (const QPalette& palette : {darkPalette(), lightPalette()})
        EXPECT_GE(contrastRatio(errorColour(palette), palette.color(QPalette::Window)), 4.5);
}

TEST(ThemesColours, AreTheHouses) {
    EXPECT_EQ(
        colorsOf(darkPalette()),
        "2b2d30 1f2124 26282c 3a3d42 e3e5e8 e3e5e8 e3e5e8 ff5c57 9aa0a8 55595f 484c52 232528 191b1d 0b0c0d "
        "2f6fb5 ffffff 6cb2ff c39bff 3f434a f1f2f4 \n2b2d30 2b2d30 26282c 3a3d42 7d838b 7d838b 7d838b ff5c57 "
        "7d838b 55595f 484c52 232528 191b1d 0b0c0d 3f454d 7d838b 7d838b c39bff 3f434a f1f2f4 \n");
    EXPECT_EQ(
        colorsOf(lightPalette()),
        "f1f2f4 ffffff f5f7f9 f7f8fa 1c1f23 1c1f23 1c1f23 ff5c57 666c75 ffffff f9fafb b9bec6 9ea4ad 6d727a "
        "b5d5f5 1c1f23 0b5cad 6a3fa8 fffbe6 23262a \nf1f2f4 f1f2f4 f5f7f9 f7f8fa 878d95 878d95 878d95 ff5c57 "
        "878d95 ffffff f9fafb b9bec6 9ea4ad 6d727a c9d0d8 878d95 878d95 6a3fa8 fffbe6 23262a \n");
}

TEST(ThemesColours, StandApartByTheirLuminance) {
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_NEAR(contrastRatio(Qt::red, Qt::black), 1 + 20 * 0.2126, 1e-3);
    EXPECT_NEAR(contrastRatio(Qt::green, Qt::black), 1 + 20 * 0.7152, 1e-3);
    EXPECT_NEAR(contrastRatio(Qt::blue, Qt::black), 1 + 20 * 0.0722, 1e-3);
    EXPECT_NEAR(contrastRatio(QColor(128, 128, 128), Qt::black), 5.317, 1e-3);
    EXPECT_NEAR(contrastRatio(QColor(8, 8, 8), Qt::black), 1 + 20 * 8 / 255.0 / 12.92, 1e-3);
}

QImage pictureOf(QWidget& widget, QStyle* style) {
    widget.setStyle(style);
    widget.setAttribute(Qt::WA_DontShowOnScreen);
    widget.resize(90, 26);
    widget.show();
    return widget.grab().toImage();
}

// Of an outline 40 in 100 are the colour of texts, the rest is that of fields.
QColor outlineOf(const QPalette& palette) {
    const QColor text = palette.color(QPalette::Text), base = palette.color(QPalette::Base);
    const auto mixed = [](int a, int b) { return (a * 40 + b * 60) / 100; };
    return QColor(mixed(text.red(), base.red()), mixed(text.green(), base.green()),
                  mixed(text.blue(), base.blue()));
}

bool hasColorLike(const QImage& image, const QColor& wanted) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (std::abs(color.red() - wanted.red()) < 4 && std::abs(color.green() - wanted.green()) < 4 &&
                std::abs(color.blue() - wanted.blue()) < 4)
                return true;
        }
    return false;
}

TEST_F(ThemesTest, ThePicturesOfTheStyleAreMadeOnceForEachDirectionOfReading) {
    const HouseStyle house;
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(QStringLiteral("Fusion")));
    QStyleOption right;
    right.direction = Qt::RightToLeft;
    const auto picture = [](const QStyle& style, const QStyleOption* option) {
        return style.standardIcon(QStyle::SP_ArrowBack, option).pixmap(16).toImage();
    };
    EXPECT_EQ(picture(house, nullptr), picture(*plain, nullptr));
    EXPECT_EQ(picture(house, &right), picture(*plain, &right));
    EXPECT_NE(picture(house, nullptr), picture(house, &right));
    EXPECT_EQ(house.standardIcon(QStyle::SP_ArrowBack, nullptr, nullptr).cacheKey(),
              house.standardIcon(QStyle::SP_ArrowBack, nullptr, nullptr).cacheKey());
}

TEST_F(ThemesTest, FieldsHaveAnOutlineThatStandsOutAndTheRestIsAsPlain) {
    manager.setTheme(kThemeDark);
    HouseStyle house;
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(QStringLiteral("Fusion")));
    const QColor outline = outlineOf(darkPalette());
    QLineEdit line;
    QSpinBox spin;
    QCheckBox check(QStringLiteral("x"));
    for (QWidget* widget : std::initializer_list<QWidget*>{&line, &spin, &check}) {
        EXPECT_TRUE(hasColorLike(pictureOf(*widget, &house), outline)) << widget->metaObject()->className();
        EXPECT_NE(pictureOf(*widget, &house), pictureOf(*widget, plain.get()))
            << widget->metaObject()->className();
    }
    QComboBox combo;
    combo.addItem(QStringLiteral("x"));
    QPushButton button(QStringLiteral("x"));
    QSlider slider(Qt::Horizontal);
    QToolButton tool;
    for (QWidget* widget : std::initializer_list<QWidget*>{&combo, &button, &slider, &tool})
        EXPECT_EQ(pictureOf(*widget, &house), pictureOf(*widget, plain.get()))
            << widget->metaObject()->className();
}

INSTANTIATE_TEST_SUITE_P(BothThemes, ThemesPalette, testing::Bool());

} // namespace
