// The help pages that are shipped, and the pictures in them.
#include "standin/help/help_browser.h"
#include "standin/help/help_service.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPalette>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBlock>
#include <gtest/gtest.h>

using namespace standin;

namespace {

const QString pages = QStringLiteral(SHIPPED_DATA_DIR "/help");

QString contentOf(const QString& page) {
    QFile file(pages + '/' + page);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << page.toStdString();
    return QString::fromUtf8(file.readAll());
}

QStringList picturesOf(const QString& page) {
    QStringList names;
    const QRegularExpression image(QStringLiteral("<img src=\"([^\"]+)\\.png\""));
    for (auto found = image.globalMatch(contentOf(page)); found.hasNext();)
        names << found.next().captured(1);
    return names;
}

struct HelpPicturesTest : testing::Test {
    HelpPicturesTest() {
        picture("wide-dark", 2000, Qt::black);
        picture("wide-light", 2000, Qt::white);
        picture("plain", 10, Qt::red);
        QFile page(folder.filePath("IDH_Page.html"));
        EXPECT_TRUE(page.open(QIODevice::WriteOnly));
        page.write("<html><body><img src=\"wide.png\"><img src=\"plain.png\"></body></html>");
    }
    void picture(const char* name, int width, Qt::GlobalColor color) const {
        QImage image(width, 20, QImage::Format_RGB32);
        image.fill(color);
        EXPECT_TRUE(image.save(folder.filePath(QString(name) + ".png")));
    }
    HelpBrowser& browser() {
        help->showTopic("IDH_Page");
        return *help->window()->findChild<HelpBrowser*>(QStringLiteral("pageBrowser"));
    }
    static QImage shown(HelpBrowser& browser, const char* name) {
        return browser.loadResource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
    }
    static void setBase(HelpBrowser& browser, Qt::GlobalColor color) {
        QPalette palette = browser.palette();
        palette.setColor(QPalette::Base, color);
        browser.setPalette(palette);
    }
    QTemporaryDir folder;
    Ref<HelpService> help = Ref<HelpService>::share(new HelpService(folder.path()));
};

TEST(HelpPages, EachTopicOfTheCommandsHasAPage) {
    for (const char* topic : {"IDH_PreferencesCMD", "IDH_DWGProps", "IDH_xattach"})
        EXPECT_TRUE(contentOf(QString(topic) + ".html").contains("<h1>")) << topic;
}

TEST(HelpPages, EachPictureOfAPageIsThereForBothThemes) {
    for (const QString& page : QDir(pages).entryList({"*.html"}))
        for (const QString& name : picturesOf(page))
            for (const char* theme : {"dark", "light"})
                EXPECT_FALSE(QImage(QStringLiteral("%1/%2-%3.png").arg(pages, name, theme)).isNull())
                    << page.toStdString() << ": " << name.toStdString() << ", " << theme;
}

TEST(HelpPages, ThePagesOfTheDialogsShowThem) {
    EXPECT_GE(picturesOf("IDH_DWGProps.html").size(), 5);
    EXPECT_GE(picturesOf("IDH_PreferencesCMD.html").size(), 5);
    EXPECT_GE(picturesOf("IDH_xattach.html").size(), 1);
}

TEST_F(HelpPicturesTest, PictureFitsTheColoursOfTheWindow) {
    setBase(browser(), Qt::black);
    EXPECT_EQ(shown(browser(), "wide.png").pixelColor(5, 5), QColor(Qt::black));
    setBase(browser(), Qt::white);
    EXPECT_EQ(shown(browser(), "wide.png").pixelColor(5, 5), QColor(Qt::white));
    EXPECT_EQ(shown(browser(), "plain.png").pixelColor(5, 5), QColor(Qt::red));
}

TEST_F(HelpPicturesTest, WidePictureIsShownSmallerAndASmallOneAsItIs) {
    EXPECT_LT(shown(browser(), "wide.png").width(), browser().width());
    help->window()->resize(500, 400);
    QApplication::processEvents();
    EXPECT_LT(shown(browser(), "wide.png").width(), 500);
    EXPECT_EQ(shown(browser(), "plain.png").width(), 10);
}

TEST_F(HelpPicturesTest, MissingPictureIsNone) { EXPECT_TRUE(shown(browser(), "none.png").isNull()); }

} // namespace
