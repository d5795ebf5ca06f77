// Puts a small picture of what the canvas shows into each drawing that is written.
#pragma once

#include <QObject>

class OdDbDatabase;

namespace standin {
class Document;
class DocumentManager;
} // namespace standin

namespace workbench {

class Canvas;

class PreviewWriter : public QObject {
    Q_OBJECT
public:
    // The canvas must outlive the writer.
    PreviewWriter(standin::DocumentManager& documentManager, Canvas& drawingArea);

private:
    void put(standin::Document* document, OdDbDatabase* drawing);

    Canvas& canvas;
};

} // namespace workbench
