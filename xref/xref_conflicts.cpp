// The walk over the references of a candidate drawing.
#include "xref/xref_conflicts.h"

#include "host/command_io.h"
#include "host/qt_application.h"
#include "host/text.h"
#include "sdk/db/block_table.h"
#include "xref/attach_host.h"
#include "xref/xref_blocks.h"

#include <QFileInfo>

namespace {

const int shareAll = 64;

OdString baseNameOf(const OdDbDatabasePtr& database) {
    return hostqt::odString(QFileInfo(hostqt::qString(database->getFilename())).baseName());
}

bool isStandardBlock(const OdDbBlockTablePtr& table, const OdString& name) {
    const auto block = odrxCast<OdDbBlockTableRecord>(table->getAt(name, OdDb::kForRead));
    return !block.isNull() && !block->isFromExternalReference();
}

bool isAttached(const OdDbBlockTablePtr& table, const OdString& name) {
    const auto block = odrxCast<OdDbBlockTableRecord>(table->getAt(name, OdDb::kForRead));
    return !block.isNull() && block->isFromExternalReference() && !block->isFromOverlayReference();
}

bool refuseStandardBlock(const OdString& name) {
    OdString text;
    text.format(
        attach::word(L"Error: %s is already a standard block in the current drawing. Canceled").c_str(),
        name.c_str());
    attach::io()->printLine(text.c_str());
    return false;
}

bool mayBeCircular() {
    const OdString text = attach::word(L"Error: Possible circular reference to current drawing. Continue?");
    return attach::notice(kConflictNotice, text) != kNoticeCancelled;
}

} // namespace

bool checkXRefConflicts(const OdString& path, const OdDbDatabasePtr& database) {
    const OdDbDatabasePtr candidate =
        qtApplicationInterface()->services()->readFile(path, 0, 0, shareAll, OdString());
    const OdString currentName = baseNameOf(database), candidateName = baseNameOf(candidate);
    const OdDbBlockTablePtr current = blockTableOf(database), other = blockTableOf(candidate);
    for (OdDbSymbolTableIterator it = other->newIterator(); !it.done(); it.step()) {
        const auto record = odrxCast<OdDbBlockTableRecord>(it.getRecord());
        if (!record->isFromExternalReference())
            continue;
        if (isStandardBlock(current, record->getName()))
            return refuseStandardBlock(record->getName());
        if (isAttached(other, currentName) && !mayBeCircular())
            return false;
        if (other->has(candidateName)) {
            // The text doesn't fit the test, and is meant to stand.
            attach::io()->printFormatted(attach::word(L"There are no active Model space viewports").c_str());
            return false;
        }
    }
    return true;
}
