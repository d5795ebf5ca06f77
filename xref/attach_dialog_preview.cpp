// The preview in the attach dialog.
#include "xref/attach_dialog.h"

#include "host/text.h"
#include "sdk/db/thumbnail.h"
#include "xref/attach_host.h"

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPixmap>

namespace {

// Null bytes and damaged pictures give a null image; a damaged one is told on the console.
QImage imageOf(const QString& path, OdThumbnailImage& thumbnail) {
    if (!thumbnail.hasPng() && thumbnail.hasBmp())
        thumbnail.convBmpToPng();
    const QImage image = QImage::fromData(reinterpret_cast<const uchar*>(thumbnail.png.data()),
                                          static_cast<int>(thumbnail.png.size()), "PNG");
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
