// What a double click on the label of an editor row does.
#include "options/kinds/editor_modify.h"

#include "options/pages/rows/pref_widget.h"
#include "options/window/preferences.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>

namespace {

template <class Editor> Editor* editorOf(Preferences& preferences, TreeItem* item) {
    QPrefWidget* row = preferences.rowWidgets.value(item);
    return row ? row->findChild<Editor*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

// Two clicks pass the swatch's own test for a double click.
void clickTwice(QToolButton* swatch) {
    if (!swatch)
        return;
    swatch->click();
    swatch->click();
}

void startEditing(QWidget* editor) {
    if (!editor)
        return;
    editor->setEnabled(true);
    editor->setFocus(Qt::OtherFocusReason);
}

} // namespace

void modifyEditorRow(Preferences& preferences, TreeItem* item) {
    switch (item->nodeType) {
    case kNodeColor:
    case kNodeAcColor:
        return clickTwice(editorOf<QToolButton>(preferences, item));
    case kNodeEditInt:
    case kNodeEditReal:
        return startEditing(editorOf<QAbstractSpinBox>(preferences, item));
    case kNodeEditFile:
    case kNodeEdit:
    case kNodeEditMultiFile:
    case kNodeEditDir:
        return startEditing(editorOf<QLineEdit>(preferences, item));
    case kNodeCombo:
        if (QComboBox* box = editorOf<QComboBox>(preferences, item))
            box->showPopup();
        return;
    default:
        return;
    }
}
