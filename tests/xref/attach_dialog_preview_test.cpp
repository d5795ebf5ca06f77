// The preview of the attach dialog.
#include "sdk/db/thumbnail.h"
#include "tests/support/memory_bound.h"
#include "tests/xref/attach_dialog_fixture.h"

#include <QBuffer>
#include <QImage>

namespace {

void giveItAPreview(OdDbDatabase& drawing) {
    OdThumbnailImage image;
    // A bitmap of 2 by 1 pixels with 24 bits: a red one and a blue one.
    image.bmp =
        std::string("\x28\0\0\0\2\0\0\0\1\0\0\0\1\0\x18\0\0\0\0\0\x08\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
                    "\0\0\xff\xff\0\0\0\0",
                    48);
    odDbPutPreviewBitmap(&drawing, image);
}

} // namespace

TEST_F(AttachDialog, SeveralFilesShowNoPreviewThoughAFileHasTheWholeOfTheirListAsItsName) {
    const OdDbDatabasePtr part = smallDrawing();
    giveItAPreview(*part);
    part->writeFile(odPath("a;b.dxf"));
    ASSERT_FALSE(loadPreviewImage(inFolder("a;b.dxf")).isNull());
    open(inFolder("a;b.dxf"));
    ASSERT_TRUE(dialog->multipleFiles);
    EXPECT_TRUE(control<QLabel>("previewLabel")->pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(AttachDialog, PreviewOfAFormerNameGoesWithIt) {
    const OdDbDatabasePtr part = smallDrawing();
    giveItAPreview(*part);
    part->writeFile(odPath("part.dxf"));
    define("other", write("other.dxf"));
    open(inFolder("part.dxf"));
    ASSERT_FALSE(control<QLabel>("previewLabel")->pixmap(Qt::ReturnByValue).isNull());
    choose("nameCombo", 0);
    EXPECT_EQ(dialog->name, "other");
    EXPECT_TRUE(control<QLabel>("previewLabel")->pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(AttachDialog, PreviewOfTheFileIsShown) {
    const OdDbDatabasePtr part = smallDrawing();
    giveItAPreview(*part);
    part->writeFile(odPath("part.dxf"));
    const QImage read = loadPreviewImage(inFolder("part.dxf"));
    ASSERT_EQ(read.size(), QSize(2, 1));
    EXPECT_EQ(read.pixelColor(0, 0), QColor(255, 0, 0));
    open(inFolder("part.dxf"));
    EXPECT_EQ(control<QLabel>("previewLabel")->pixmap(Qt::ReturnByValue).size(), QSize(200, 100));
}

TEST_F(AttachDialog, FileWithoutAPreviewShowsNone) {
    EXPECT_TRUE(loadPreviewImage(write("part.dxf")).isNull());
    EXPECT_TRUE(loadPreviewImage(inFolder("gone.dxf")).isNull());
    EXPECT_TRUE(loadPreviewImage(folder.path()).isNull());
}

TEST_F(AttachDialog, DamagedPreviewIsToldWithThePathAndTheDialogOpens) {
    provideServices();
    const QString path = writeBytes(
        "part.dxf", "  0\nSECTION\n  2\nTHUMBNAILIMAGE\n 90\n4\n310\nDEADBEEF\n  0\nENDSEC\n  0\nEOF\n");
    open(path);
    EXPECT_TRUE(dialog->initialized);
    EXPECT_EQ(services->reported,
              QStringList(QStringLiteral("The preview of \"%1\" cannot be shown.").arg(path)));
    EXPECT_TRUE(host.notices().empty());
}

namespace {

std::string largePng(int width, int height) {
    QImage image(width, height, QImage::Format_Mono);
    image.fill(0);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

} // namespace

class PreviewSizes : public AttachDialog {
protected:
    // The preview that is read of a drawing whose file carries one of that size.
    QSize read(int width, int height) {
        writeWithPreview(width, height);
        return loadPreviewImage(inFolder("part.dxf")).size();
    }
    void writeWithPreview(int width, int height) {
        const OdDbDatabasePtr part = smallDrawing();
        OdThumbnailImage image;
        image.bmp = largePng(width, height);
        odDbPutPreviewBitmap(part.get(), image);
        part->writeFile(odPath("part.dxf"));
    }
};

TEST_F(PreviewSizes, WhatClaimsToBeHugeIsNotBelieved) {
    provideServices();
    for (const auto& [width, height] : {std::pair(30000, 30000), {16385, 8}, {8, 16385}}) {
        services->reported.clear();
        writeWithPreview(width, height);
        const MemoryBound bound(200);
        EXPECT_TRUE(loadPreviewImage(inFolder("part.dxf")).isNull()) << width;
        EXPECT_EQ(services->reported.size(), 1) << "it is told that the preview can't be shown";
    }
}

TEST_F(PreviewSizes, LargeOnesAreScaledWhileTheyAreRead) {
    EXPECT_EQ(read(16384, 4096), QSize(1024, 256));
    EXPECT_EQ(read(64, 16384), QSize(4, 1024));
    EXPECT_EQ(read(16384, 1), QSize(1024, 1)) << "a line stays a line";
    EXPECT_EQ(read(1024, 1024), QSize(1024, 1024));
    EXPECT_EQ(read(1025, 1025), QSize(1024, 1024));
}

TEST_F(PreviewSizes, ShownOnesFillTheirPlaceOneWayAndStandInItsMiddle) {
    for (const auto& [size, shown] :
         {std::pair(QSize(64, 16), QSize(200, 50)), {QSize(16, 64), QSize(50, 200)}}) {
        writeWithPreview(size.width(), size.height());
        open(inFolder("part.dxf"));
        const auto* const label = control<QLabel>("previewLabel");
        EXPECT_EQ(label->pixmap(Qt::ReturnByValue).size(), shown);
        EXPECT_EQ(label->size(), QSize(200, 200));
        EXPECT_EQ(label->alignment(), Qt::AlignCenter);
    }
}
