// The list of block names in the attach dialog, and what it shows for the chosen one.
#include "xref/attach_dialog.h"

#include "host/dialog_habits.h"
#include "host/text.h"
#include "sdk/db/xref_graph.h"
#include "xref/attach_host.h"
#include "xref/block_name.h"
#include "xref/unit_ratio.h"
#include "xref/unit_words.h"
#include "xref/xref_blocks.h"
#include "xref/xref_paths.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>

bool fillEntries(const QString& path, std::vector<XRefEntry>& entries) {
    const OdDbDatabasePtr database = attach::database();
    const OdDbBlockTablePtr table = blockTableOf(database);
    std::vector<XRefEntry> collected;
    for (const QString& part : path.split(QLatin1Char(';'))) {
        const QString native = QDir::toNativeSeparators(part);
        if (native.isEmpty())
            continue;
        XRefEntry entry;
        blockNameFromFile(QFileInfo(native).fileName(), 0, entry.name);
        entry.path = entry.savedPath = native;
        entry.flag = table->has(hostqt::odString(entry.name));
        collected.push_back(entry);
    }
    entries = collected;
    return true;
}

void hostInsertExternalReferenceDialog::fillNames() {
    nameCombo->clear();
    OdDbXrefGraph graph;
    OdDbXrefGraph::getFrom(database.get(), graph, false);
    for (std::size_t i = 0; i < graph.numNodes(); ++i) {
        const OdDbXrefGraphNode& node = graph.node(i);
        if (node.status == 0)
            continue;
        const QString nodeName = hostqt::qString(node.name);
        nameCombo->addItem(nodeName);
        if (nodeName.compare(name, Qt::CaseInsensitive) == 0) {
            name = nodeName;
            nameCombo->setCurrentIndex(nameCombo->count() - 1);
        }
    }
    if (nameCombo->count() == 0) {
        nameCombo->addItem(name);
        nameCombo->setCurrentIndex(0);
    }
}

void hostInsertExternalReferenceDialog::refreshForName(const QString& blockName) {
    OdDbBlockTableRecordPtr record;
    updateUnit(blockName, record);
    if (multipleFiles)
        return;
    updateFromRecord(record);
    updatePreview();
}

void hostInsertExternalReferenceDialog::updateUnit(const QString& blockName,
                                                   OdDbBlockTableRecordPtr& record) {
    if (multipleFiles && hasHabit(DialogHabit::UnitOfFileShown)) {
        unitEdit->setText(tr("Varies"));
        factorEdit->setText(tr("Varies"));
        return;
    }
    if (multipleFiles) {
        unitEdit->setText(hostqt::qString(attach::word(L"Unitless")));
        factorEdit->setText(QString::number(unitRatio(OdDb::kUnitsUndefined, OdDb::kUnitsUndefined), 'g', 6));
        return;
    }
    record = odrxCast<OdDbBlockTableRecord>(
        blockTableOf(database)->getAt(hostqt::odStringFromWidget(blockName), OdDb::kForRead));
    if (record.isNull() || OdDbXRefMan::load(record.get()) != eOk)
        return;
    const bool shown = hasHabit(DialogHabit::UnitOfFileShown);
    unitEdit->setText(shown ? unitWord(record->blockInsertUnits()) : QString());
    const double factor = unitRatio(record->blockInsertUnits(), database->getINSUNITS());
    factorEdit->setText(QString::number(factor, 'g', 6));
}

void hostInsertExternalReferenceDialog::updateFromRecord(const OdDbBlockTableRecordPtr& record) {
    if (record.isNull())
        return;
    path = hostqt::qString(resolveXRefPath(record));
    fileName = QFileInfo(path).fileName();
}
