// The preview in the attach dialog.
#include "xref/attach_dialog.h"

#include "host/text.h"
#include "sdk/db/thumbnail.h"
#include "xref/attach_host.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QLabel>
#include <QPixmap>

namespace {

const int largestSide = 16384; // of a preview that is read at all
const int shownSide = 1024;    // to which a larger one is scaled while it is read

// What a file claims about its picture costs nothing until it is believed.
QImage readPicture(const std::string& png) {
    if (png.empty())
        return {};
    QByteArray bytes = QByteArray::fromRawData(png.data(), static_cast<int>(png.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "PNG");
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > largestSide || size.height() > largestSide)
        return {};
    if (size.width() > shownSide || size.height() > shownSide)
        reader.setScaledSize(size.scaled(shownSide, shownSide, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

// Null bytes, damaged pictures and too large ones give a null image; one that is there and can't be shown is
// told on the console.
QImage imageOf(const QString& path, OdThumbnailImage& thumbnail) {
    if (!thumbnail.hasPng() && thumbnail.hasBmp())
        thumbnail.convBmpToPng();
    const QImage image = readPicture(thumbnail.png);
    if (image.isNull() && (thumbnail.hasBmp() || thumbnail.hasPng())) {
        OdString text;
        reportToConsole(attach::io(),
                        text.format(attach::word(L"The preview of \"%s\" cannot be shown.").c_str(),
                                    hostqt::odString(path).c_str()));
    }
    return image;
}

} // namespace

// A file that can't be opened has no preview; the attaching itself tells what is wrong with it.
QImage loadPreviewImage(const QString& path) {
    if (!QFile::exists(path))
        return {};
    try {
        const OdStreamBufPtr stream = odSystemServices()->createFile(hostqt::odString(path), Oda::kFileRead,
                                                                     Oda::kShareDenyNo, Oda::kOpenExisting);
        OdThumbnailImage thumbnail;
        odDbGetPreviewBitmap(stream.get(), &thumbnail);
        return imageOf(path, thumbnail);
    } catch (const OdError&) {
        return {};
    }
}

void hostInsertExternalReferenceDialog::updatePreview() {
    previewLabel->setPixmap(QPixmap());
    const QPixmap picture = QPixmap::fromImage(loadPreviewImage(path));
    if (!picture.isNull())
        previewLabel->setPixmap(picture.scaled(200, 200, Qt::KeepAspectRatio, Qt::FastTransformation));
    previewLabel->setFixedSize(200, 200);
    updatePathType();
}
