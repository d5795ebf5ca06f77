// One open drawing: its database, its names, and what of the host belongs to it.
#pragma once

#include "host/documents.h"
#include "standin/sysvars/var_service.h"

#include <memory>

namespace standin {

class Console;
class EditorSelection;

class Document : public HostDocument, public DrawingVars {
public:
    // `title` is shown while the drawing has no file.
    Document(OdSmartPtr<OdDbDatabase> database, Console& console, const QString& title);
    ~Document() override;

    OdSmartPtr<OdDbDatabase> database() override;
    HostCommandIO* commandIO() override;
    HostEditorSelection* selection() override;
    EditorSelection& editor() { return *editorSelection; }
    const wchar_t* fileName() override { return filePath.c_str(); }
    const wchar_t* title() override { return name.c_str(); }

    QString path() const;
    QString displayName() const;
    // The file that a drawing that was never saved is a copy of; empty for any other.
    QString origin() const { return copiedFile; }
    void setOrigin(const QString& file) { copiedFile = file; }
    void setPath(const QString& path); // absolute; the title becomes the file's name
    // DWGNAME, DWGPREFIX and DWGTITLED follow from the path; the others are the database's.
    OdResBufPtr valueInDrawing(const QString& variable) override;
    bool setInDrawing(const QString& variable, const OdResBuf& value) override;

private:
    OdSmartPtr<OdDbDatabase> drawing;
    Console& io;
    std::unique_ptr<EditorSelection> editorSelection;
    std::wstring filePath, name;
    QString copiedFile;
};

} // namespace standin
