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

} // namespace

PreviewWriter::PreviewWriter(DocumentManager& documentManager, Canvas& drawingArea) : canvas(drawingArea) {
    connect(&documentManager, &DocumentManager::beforeWrite, this, &PreviewWriter::put);
}

// A drawing that is as its file is written as it was read.
void PreviewWriter::put(Document* document, OdDbDatabase* drawing) {
    if (!isWanted(*document) || (!drawing->isModified() && !drawing->getFilename().isEmpty()))
        return;
    const QColor background = readSettings(appService<IProfile>().get()).canvasBack;
    const DisplayList* shown = canvas.listOf(*drawing);
    OdThumbnailImage picture;
    if (shown) {
        picture = previewPicture(*shown, background);
    } else {
        DisplayList own{OdDbDatabasePtr(drawing)};
        own.refresh();
        picture = previewPicture(own, background);
    }
    if (picture.hasBmp())
        odDbPutPreviewBitmap(drawing, picture);
}

} // namespace workbench

#include "moc_preview_writer.cpp"
