// The preview picture of a drawing file.
#pragma once

#include "sdk/db/database.h"
#include "sdk/rx/stream_buf.h"

class OdThumbnailImage {
public:
    bool hasBmp() const { return !bmp.empty(); }
    bool hasPng() const { return !png.empty(); }
    // Makes the PNG from the bitmap, smaller where a side has more than 2048 pixels; false, and no PNG, when
    // the bitmap is not one that is understood or a side has more than 16384.
    bool convBmpToPng();

    std::string bmp; // a bitmap from its info header on, without a file header
    std::string png;
};

// Reads the preview of a drawing in text or binary form. eKeyNotFound when it has none, eInvalidDrawing when
// the file is not understood up to there.
OdResult odDbGetPreviewBitmap(OdStreamBuf* stream, OdThumbnailImage* image);
// Sets the preview that the next save writes; version R12 has no place for one. The picture is a bitmap from
// its info header on.
void odDbPutPreviewBitmap(OdDbDatabase* database, const OdThumbnailImage& image);
