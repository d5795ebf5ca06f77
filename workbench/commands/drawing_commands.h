// Saving and closing drawings so that nothing is lost unasked; for the commands and for closing the window.
#pragma once

#include <QString>
#include <functional>

namespace standin {
class Document;
class DocumentManager;
} // namespace standin

namespace workbench {

class FileQuestions;

// Whether it was saved; false when the user cancels, or keeps what another program wrote into the file.
// A drawing that is made newer becomes another document, which is the current one. Throws OdError.
bool saveDrawing(standin::DocumentManager& documents, standin::Document& document,
                 const FileQuestions& files);
bool saveDrawingAs(standin::DocumentManager& documents, standin::Document& document,
                   const FileQuestions& files);

// Saves or gives up the changes as the user says; false when the drawing is to stay open.
bool settleChanges(standin::DocumentManager& documents, standin::Document& document,
                   const FileQuestions& files);
bool settleAllChanges(standin::DocumentManager& documents, const FileQuestions& files);

// Opens a drawing by `open`; an empty one that was current and that nobody has touched is closed. Throws
// OdError.
void openInPlaceOfUntouched(standin::DocumentManager& documents, const std::function<void()>& open);

} // namespace workbench
