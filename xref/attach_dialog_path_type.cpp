// The saved path in the attach dialog: relative, full, or the file's name alone.
#include "xref/attach_dialog.h"

#include "xref/attach_host.h"
#include "xref/attach_messages.h"
#include "xref/xref_paths.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>

namespace {
enum PathTypeRow { kRelativeRow = 0, kFullRow = 1, kNoPathRow = 2 };
}

void hostInsertExternalReferenceDialog::updatePathType() {
    if (multipleFiles)
        updateSavedPaths();
    else
        updateSavedPath();
}

void hostInsertExternalReferenceDialog::fallBackToFullPath(const wchar_t* reason) {
    attach::notice(kFileNotice, attach::word(reason));
    pathTypeCombo->setCurrentIndex(kFullRow);
}

void hostInsertExternalReferenceDialog::updateSavedPath() {
    QString saved = path;
    if (pathTypeCombo->currentIndex() == kNoPathRow) {
        saved = fileName; // with the extension, unlike several files
    } else if (pathTypeCombo->currentIndex() == kRelativeRow) {
        if (attach::isUnsaved())
            fallBackToFullPath(kDrawingNotSaved);
        else if (!relativeFilePath(relativeBase(database), path, saved))
            fallBackToFullPath(kNotOnOneDisk);
    }
    savedPathEdit->setText(saved);
    foundInEdit->setText(path);
}

// Whatever entry fails, one message tells it, and all entries keep their full paths.
void hostInsertExternalReferenceDialog::updateSavedPaths() {
    if (pathTypeCombo->currentIndex() == kRelativeRow) {
        const bool unsaved = attach::isUnsaved();
        bool possible = !unsaved;
        const QString base = relativeBase(database);
        for (XRefEntry& entry : entries)
            possible = possible && relativeFilePath(base, entry.path, entry.savedPath);
        if (!possible)
            fallBackToFullPath(unsaved ? kDrawingNotSaved : kNotOnOneDisk);
    }
    for (XRefEntry& entry : entries) {
        if (pathTypeCombo->currentIndex() == kFullRow)
            entry.savedPath = entry.path;
        if (pathTypeCombo->currentIndex() == kNoPathRow)
            entry.savedPath = QFileInfo(entry.path).baseName(); // without the extension, on purpose
    }
}
