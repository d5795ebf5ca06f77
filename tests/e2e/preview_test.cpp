// The preview picture that a saved drawing carries, as file dialogs and attached references show it.
#include "sdk/db/thumbnail.h"
#include "tests/e2e/drawing_fixture.h"

#include <QFile>
#include <QImage>

namespace {

struct PreviewTest : DrawingFixture {
    static QByteArray bytesOf(const QString& file) {
        QFile opened(file);
        EXPECT_TRUE(opened.open(QIODevice::ReadOnly));
        return opened.readAll();
    }
    // Null when the file has none.
    static QImage previewOf(const QString& file) {
        OdThumbnailImage picture;
        OdStreamBufPtr stream(new OdStreamBuf(bytesOf(file).toStdString()));
        if (odDbGetPreviewBitmap(stream.get(), &picture) != eOk)
            return {};
        EXPECT_TRUE(picture.convBmpToPng());
        return QImage::fromData(QByteArray::fromStdString(picture.png));
    }
    static bool shows(const QImage& picture, const QRect& part) {
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                if (picture.pixel(x, y) != picture.pixel(0, 0))
                    return true;
        return false;
    }
};

// The drawing is 210 wide and 40 high: lines at the left, the circle at the right.
TEST_F(PreviewTest, AChangedDrawingIsSavedWithAPictureOfAllOfIt) {
    eraseFirstLine();
    enter({"SAVE"});
    const QImage picture = previewOf(path);
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.width(), 200);
    EXPECT_LT(picture.height(), 40);
    EXPECT_TRUE(shows(picture, {20, 0, 10, picture.height()}));
    EXPECT_TRUE(shows(picture, {170, 0, 25, picture.height()}));
    EXPECT_FALSE(shows(picture, {110, 0, 50, picture.height()}));
}

TEST_F(PreviewTest, EachSaveShowsTheDrawingAsItIsThen) {
    eraseFirstLine();
    enter({"SAVE"});
    const QImage before = previewOf(path);
    document().database()->startUndoRecord();
    entities().back().safeOpenObject(OdDb::kForWrite)->erase(); // the circle
    enter({"SAVE"});
    EXPECT_NE(previewOf(path).size(), before.size());
}

TEST_F(PreviewTest, AnUnchangedDrawingIsWrittenAsItWasRead) {
    const QByteArray former = bytesOf(path);
    enter({"SAVE"});
    EXPECT_EQ(bytesOf(path), former);
}

TEST_F(PreviewTest, TheVariableTurnsItOff) {
    enter({"RASTERPREVIEW", "0"});
    eraseFirstLine();
    enter({"SAVE"});
    EXPECT_TRUE(previewOf(path).isNull());
}

TEST_F(PreviewTest, ANewDrawingHasOneAndAnEmptyOneHasNone) {
    enter({"SAVEAS", qPrintable(root.filePath("copy.dxf")), "NEW", "SAVE",
           qPrintable(root.filePath("empty.dxf"))});
    EXPECT_TRUE(previewOf(root.filePath("empty.dxf")).isNull());
}

TEST_F(PreviewTest, ADrawingThatIsNotTheCurrentOneHasOneToo) {
    standin::Document& first = document();
    eraseFirstLine();
    enter({"NEW"});
    static_cast<standin::DocumentManager*>(HostDocManager())->save(&first, path);
    EXPECT_FALSE(previewOf(path).isNull());
}

TEST_F(PreviewTest, TheVersionR12HasNoPlaceForOne) {
    const QString old = root.filePath("old.dxf");
    QFile file(old);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0.0\n20\n0.0\n11\n3.0\n21\n4.0\n0\nLINE\n8\n0\n10\n"
        "0.0\n20\n0.0\n11\n5.0\n21\n4.0\n0\nENDSEC\n0\nEOF\n");
    file.close();
    enter({"CLOSE", "OPEN", qPrintable(old)});
    ASSERT_EQ(entities().size(), 2u) << qPrintable(lastLine());
    eraseFirstLine();
    enter({"SAVE"});
    EXPECT_FALSE(bytesOf(old).contains("THUMBNAILIMAGE"));
    EXPECT_EQ(entities().size(), 1u);
}

// The canvas is painted anew although the selection brought its list of shapes up to date first.
TEST_F(PreviewTest, WhatIsErasedGoesFromTheCanvasWhenASelectionFollowsAtOnce) {
    const QPoint onLine = pixel(50, 0);
    const QImage before = canvas().grab().toImage();
    document().database()->startUndoRecord();
    entities()[0].safeOpenObject(OdDb::kForWrite)->erase();
    enter({"SELECT", "Window", "-500,-500", "-400,-400", ""});
    EXPECT_NE(canvas().grab().toImage().pixel(onLine), before.pixel(onLine));
}

} // namespace
