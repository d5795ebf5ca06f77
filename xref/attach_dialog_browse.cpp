// Browse of the attach dialog: another file takes the place of the chosen one.
#include "xref/attach_dialog.h"

#include "host/dialog_habits.h"
#include "host/text.h"
#include "sdk/db/xref_graph.h"
#include "xref/attach_host.h"
#include "xref/block_name.h"
#include "xref/file_check.h"
#include "xref/file_selection.h"
#include "xref/new_definitions.h"
#include "xref/xref_blocks.h"

#include <QDir>
#include <QFileInfo>

void hostInsertExternalReferenceDialog::onBrowse() {
    const QStringList files = selectXRefFiles(this, false);
    if (files.isEmpty())
        return;
    const QString native = QDir::toNativeSeparators(files.first());
    const QString baseFile = QFileInfo(native).fileName();
    if (hasHabit(DialogHabit::BadFilesRefusedAtOnce))
        return takeReadable(native, baseFile);
    QString candidate;
    if (!blockNameFromFile(baseFile, 0, candidate))
        return;
    const OdString blockName = nameForChosenFile(candidate, native, baseFile);
    if (!blockName.isEmpty())
        replaceDefinition(blockName, native, baseFile);
}

namespace {

// The path of a reference of the wanted name against that of the chosen file, ignoring case.
bool refersTo(const OdDbBlockTableRecordPtr& record, const QString& native) {
    if (attach::numbersTakenNames())
        return isSameFile(record->pathName(), native);
    return record->pathName().iCompare(hostqt::odString(native)) == 0;
}

} // namespace

// A plain block of that name keeps it, and the dialog shows that block from then on; a host may have the file
// numbered instead.
OdString hostInsertExternalReferenceDialog::nameForChosenFile(const QString& candidate, const QString& native,
                                                              const QString& baseFile) {
    const OdString wanted = hostqt::odString(candidate);
    OdDbXrefGraph graph;
    OdDbXrefGraph::getFrom(database.get(), graph, false);
    const OdDbBlockTablePtr table = blockTableOf(database);
    const auto record = odrxCast<OdDbBlockTableRecord>(table->getAt(wanted, OdDb::kForRead));
    if (record.isNull())
        return wanted;
    const OdDbXrefGraphNode* const node = graph.xrefNode(wanted);
    const bool isReference = node && (node->flags & OdDbXrefGraphNode::kReference);
    if (!isReference)
        return attach::numbersTakenNames() ? uniqueBlockName(table, wanted) : wanted;
    if (!refersTo(record, native))
        return uniqueBlockName(table, wanted);
    takeOver(candidate, native, baseFile);
    return {};
}

// The check has made the definition already, if there was none.
void hostInsertExternalReferenceDialog::takeReadable(const QString& native, const QString& baseFile) {
    QString blockName;
    if (!canBeAttached(native, &blockName))
        return;
    if (blockName.compare(name, Qt::CaseInsensitive) != 0)
        eraseShownDefinition();
    takeOver(blockName, native, baseFile);
}

void hostInsertExternalReferenceDialog::takeOver(const QString& candidate, const QString& native,
                                                 const QString& baseFile) {
    path = native;
    fileName = baseFile;
    name = candidate;
    fillNames();
    refreshForName(name);
}

void hostInsertExternalReferenceDialog::replaceDefinition(const OdString& candidate, const QString& native,
                                                          const QString& baseFile) {
    const OdDbBlockTablePtr table = blockTableOf(database);
    eraseShownDefinition();
    if (table->getAt(candidate, OdDb::kForRead).isNull())
        noteNewDefinition(OdDbXRefManExt::addNewXRefDefBlock(
            database.get(), hostqt::odString(native), candidate, isOverlay(), OdString(), OdDbHandle()));
    takeOver(hostqt::qString(candidate), native, baseFile);
}

void hostInsertExternalReferenceDialog::eraseShownDefinition() {
    const OdDbBlockTablePtr table = blockTableOf(database);
    const OdDbSymbolTableRecordPtr old = table->getAt(hostqt::odStringFromWidget(name), OdDb::kForWrite);
    if (old.isNull())
        return;
    old->upgradeOpen();
    old->erase(true); // one that the drawing uses stays
}
