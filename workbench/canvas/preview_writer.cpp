#include "workbench/canvas/preview_writer.h"

#include "host/app.h"
#include "standin/display/preview_picture.h"
#include "standin/documents/document_manager.h"
#include "standin/sysvars/read_variable.h"
#include "workbench/canvas/canvas.h"

using namespace standin;

namespace workbench {

namespace {

bool isWanted(Document& document) {
    const OdResBufPtr value = readVariable(L"RASTERPREVIEW", document.database().get());
    return !value.isNull() && value->getBool();
}

// The former preview is better than one of a part of the drawing.
void putPictureOf(const DisplayList& list, const QColor& background) {
    const OdThumbnailImage picture =
        list.isCancelled() ? OdThumbnailImage() : previewPicture(list, background);
    if (picture.hasBmp())
        odDbPutPreviewBitmap(&list.database(), picture);
}

} // namespace

PreviewWriter::PreviewWriter(DocumentManager& documentManager, Canvas& drawingArea) : canvas(drawingArea) {
    connect(&documentManager, &DocumentManager::beforeWrite, this, &PreviewWriter::put);
}

// A drawing that is as its file is written as it was read.
void PreviewWriter::put(Document* document, OdDbDatabase* drawing) {
    if (!isWanted(*document) || (!drawing->isModified() && !drawing->getFilename().isEmpty()))
        return;
    const QColor background = readSettings(appService<IProfile>().get()).canvasBack;
    if (const DisplayList* shown = canvas.listOf(*drawing))
        return putPictureOf(*shown, background);
    DisplayList own{OdDbDatabasePtr(drawing)};
    own.refresh();
    putPictureOf(own, background);
}

} // namespace workbench

#include "moc_preview_writer.cpp"
