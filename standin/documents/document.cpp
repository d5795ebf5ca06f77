// Facts about the file of a drawing are read as variables of the drawing, so they are answered here.
#include "standin/documents/document.h"

#include "host/text.h"
#include "sdk/db/database.h"
#include "sdk/rx/wide_text.h"
#include "standin/console/console.h"
#include "standin/selection/editor_selection.h"

#include <QDir>
#include <QFileInfo>

namespace standin {

namespace {

OdResBufPtr textValue(const QString& text) {
    OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtString);
    value->setString(hostqt::odString(text));
    return value;
}

OdResBufPtr boolValue(bool on) {
    OdResBufPtr value = OdResBuf::newRb(OdResBuf::kDxfBool);
    value->setBool(on);
    return value;
}

} // namespace

Document::Document(OdSmartPtr<OdDbDatabase> database, Console& console, const QString& title)
    : drawing(std::move(database)), io(console),
      editorSelection(std::make_unique<EditorSelection>(drawing, console)), name(hostqt::stdWString(title)) {}

Document::~Document() = default;

OdSmartPtr<OdDbDatabase> Document::database() { return drawing; }

HostCommandIO* Document::commandIO() { return &io; }

HostEditorSelection* Document::selection() { return editorSelection.get(); }

QString Document::path() const { return odQString(filePath); }

QString Document::displayName() const { return odQString(name); }

void Document::setPath(const QString& path) {
    filePath = hostqt::stdWString(path);
    name = hostqt::stdWString(QFileInfo(path).fileName());
}

OdResBufPtr Document::valueInDrawing(const QString& variable) {
    if (variable == QLatin1String("DWGNAME"))
        return textValue(displayName());
    if (variable == QLatin1String("DWGPREFIX"))
        return textValue(path().isEmpty() ? QString() : QFileInfo(path()).path() + QDir::separator());
    if (variable == QLatin1String("DWGTITLED"))
        return boolValue(!path().isEmpty());
    try {
        return drawing->getSysVar(hostqt::odString(variable));
    } catch (const OdError&) {
        return {};
    }
}

bool Document::setInDrawing(const QString& variable, const OdResBuf& value) {
    try {
        drawing->setSysVar(hostqt::odString(variable), &value);
        return true;
    } catch (const OdError&) {
        return false;
    }
}

} // namespace standin
