// The icon table, its resources in both themes, and the two look-ups.
#include "module/icons/icons.h"

#include "host/qt_ui_core.h"
#include "module/icons/icon_table.h"
#include "standin/registry.h"

#include <QFile>
#include <QImage>
#include <gtest/gtest.h>

namespace {

class ThemeOf : public HostQtStyleManager {
public:
    explicit ThemeOf(int themeToShow) : number(themeToShow) { standin::registry().styles = this; }
    ~ThemeOf() override { standin::registry().styles = nullptr; }
    hostui::qt::style::hostQtThemeChangeWatcher* themeWatcher() override { return &watcher; }
    int themeNumber() override { return number; }

private:
    int number;
    hostui::qt::style::hostQtThemeChangeWatcher watcher;
};

QImage pictureOf(const QIcon& icon, int size = 24) { return icon.pixmap(size, size).toImage(); }

} // namespace

TEST(IconTable, HoldsThirtySevenNamesByNumberWithoutNineteen) {
    const QStringList names = QStringLiteral("paper folders grip profile color zip snapset cursor windows "
                                             "visual_ui_style undo text template standard format_pic raster "
                                             "mouse mail - imp_exp graphic save geo dyn command_pref api "
                                             "choose edit delete down up add pref help_format quick_opt "
                                             "show_msg logpref underl")
                                  .split(' ');
    EXPECT_EQ(iconTable().size(), 37);
    for (int number = 1; number <= names.size(); ++number)
        EXPECT_EQ(iconTable().value(number, "-"), names.at(number - 1)) << number;
}

TEST(IconTable, EveryNameHasAPictureOfEverySizeInBothThemes) {
    for (const QString& name : iconTable()) {
        for (const QString theme : {"dark", "light"}) {
            const QString path = ":/res/" + theme + "/" + name + ".ico";
            ASSERT_TRUE(QFile::exists(path)) << path.toStdString();
            const QList<QSize> sizes = QIcon(path).availableSizes();
            for (int size : {16, 24, 32, 48})
                EXPECT_TRUE(sizes.contains(QSize(size, size))) << path.toStdString() << " lacks " << size;
        }
    }
}

TEST(IconTable, TheTwoThemesShowDifferentPictures) {
    for (const QString& name : iconTable())
        EXPECT_NE(pictureOf(QIcon(":/res/dark/" + name + ".ico")),
                  pictureOf(QIcon(":/res/light/" + name + ".ico")))
            << name.toStdString();
}

TEST(IconTable, NoTwoNamesShareAPictureEvenAtTheSmallestSize) {
    for (const QString theme : {"dark", "light"}) {
        QMap<QByteArray, QString> nameOfPicture;
        for (const QString& name : iconTable()) {
            const QImage picture = pictureOf(QIcon(":/res/" + theme + "/" + name + ".ico"), 16);
            const auto* bytes = reinterpret_cast<const char*>(picture.constBits());
            QString& taken = nameOfPicture[QByteArray(bytes, int(picture.sizeInBytes()))];
            EXPECT_TRUE(taken.isEmpty()) << name.toStdString() << " looks like " << taken.toStdString();
            taken = name;
        }
    }
}

TEST(TreeIcon, UnknownNumberGivesThePictureOfRow33) {
    const ThemeOf dark(0);
    EXPECT_EQ(pictureOf(treeIcon(19)), pictureOf(treeIcon(33)));
    EXPECT_EQ(pictureOf(treeIcon(0)), pictureOf(treeIcon(33)));
    EXPECT_NE(pictureOf(treeIcon(32)), pictureOf(treeIcon(33)));
}

TEST(ToolIcon, UnknownNumberGivesAPathWithAnEmptyBaseName) {
    EXPECT_EQ(toolIconPath(19, 0), ":/res/dark/.ico");
    EXPECT_EQ(toolIconPath(-1, 1), ":/res/light/.ico");
    EXPECT_TRUE(toolIcon(19).isNull());
}

TEST(ToolIcon, ThemeZeroIsDarkAndEveryOtherIsLight) {
    EXPECT_EQ(toolIconPath(32, 0), ":/res/dark/add.ico");
    EXPECT_EQ(toolIconPath(32, 1), ":/res/light/add.ico");
    EXPECT_EQ(toolIconPath(32, 2), ":/res/light/add.ico");
}

TEST(ToolIcon, HasAGreyedFormForTheDisabledState) {
    const ThemeOf light(1);
    const QIcon icon = toolIcon(32);
    EXPECT_NE(icon.pixmap(24, 24, QIcon::Normal).toImage(), icon.pixmap(24, 24, QIcon::Disabled).toImage());
}
