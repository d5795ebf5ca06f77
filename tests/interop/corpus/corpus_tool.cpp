// Holds one drawing of another program to what every drawing may expect: corpus_tool IN FOLDER writes what it
// read as JSON to the standard output, and into the folder the drawing as it was read (copy.dxf), after a
// group of everything was made and undone (undone.dxf), and with that group after redoing it (grouped.dxf).
// One of the oldest version gets its group in its newer form (newer.dxf).
#include "sdk/db/block_table.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/entity.h"
#include "sdk/db/group.h"
#include "sdk/db/newer_version.h"
#include "sdk/rx/file_bytes.h"
#include "sdk/rx/wide_text.h"
#include "tests/sdk/dxf/reading_contract.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

namespace {

QString qt(const OdString& text) { return odQString(text.wide()); }

OdDbBlockTableRecordPtr modelSpace(OdDbDatabase& database) {
    return odrxCast<OdDbBlockTableRecord>(database.getModelSpaceId().safeOpenObject());
}

double numberIn(const OdDbEntity& entity, int code, double otherwise) {
    const std::size_t tag = entity.commonTag(code);
    return tag == DxfTagList::npos ? otherwise : dxfReal(entity.tags()[tag].value());
}

QJsonObject described(const OdDbEntity& entity) {
    QJsonObject result{{"kind", qt(entity.dxfName())},      {"layer", qt(entity.layer())},
                       {"linetype", qt(entity.linetype())}, {"paper", entity.isInPaperSpace()},
                       {"visible", entity.isVisible()},     {"weight", numberIn(entity, 370, -1)},
                       {"scale", numberIn(entity, 48, 1)},  {"transparency", numberIn(entity, 440, 0)}};
    if (entity.hasTrueColor())
        result["rgb"] = static_cast<int>(entity.trueColor());
    else
        result["color"] = entity.colorIndex();
    return result;
}

QJsonArray describedEntities(OdDbDatabase& database) {
    QJsonArray entities;
    for (OdDbObjectIterator it = modelSpace(database)->newIterator(); !it.done(); it.step())
        entities.append(described(*it.entity()));
    return entities;
}

// How many entities of a kind all blocks and spaces hold.
QJsonObject countedEverywhere(OdDbDatabase& database) {
    QJsonObject counts;
    const auto blocks = odrxCast<OdDbBlockTable>(database.getBlockTableId().safeOpenObject());
    for (OdDbSymbolTableIterator record = blocks->newIterator(); !record.done(); record.step()) {
        const auto block = odrxCast<OdDbBlockTableRecord>(record.getRecordId().safeOpenObject());
        for (OdDbObjectIterator it = block->newIterator(); !it.done(); it.step()) {
            const QString kind = qt(it.entity()->dxfName());
            counts[kind] = counts[kind].toInt() + 1;
        }
    }
    return counts;
}

QJsonArray warningsOf(const OdDbDatabase& database) {
    QJsonArray warnings;
    for (const OdString& warning : database.readWarnings())
        warnings.append(qt(warning));
    return warnings;
}

void groupEverything(OdDbDatabase& database) {
    const auto groups =
        odrxCast<OdDbDictionary>(database.getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
    OdDbGroupPtr group(new OdDbGroup);
    groups->setAt(L"EVERYTHING", group.get());
    group->append(modelSpace(database)->entityIds());
}

int groupSize(OdDbDatabase& database) {
    const auto groups = odrxCast<OdDbDictionary>(database.getGroupDictionaryId().safeOpenObject());
    OdDbObjectIdArray ids;
    odrxCast<OdDbGroup>(groups->getAt(L"EVERYTHING").safeOpenObject())->allEntityIds(ids);
    return static_cast<int>(ids.size());
}

OdDbDatabasePtr withGroups(OdDbDatabasePtr database) {
    std::vector<OdString> leftOut;
    const bool lacksGroups = database->versionName().wide() < std::wstring(L"AC1012");
    return lacksGroups ? odDbInNewerVersion(*database, leftOut) : database;
}

int run(const OdString& in, const OdString& folder) {
    const OdDbDatabasePtr database = OdDbDatabase::readFile(in);
    QJsonObject found{{"version", qt(database->versionName())},
                      {"fault", QString::fromStdString(faultOfReading(odReadFile(in)))},
                      {"warnings", warningsOf(*database)},
                      {"entities", describedEntities(*database)},
                      {"counts", countedEverywhere(*database)}};
    database->writeFile(folder + L"/copy.dxf");
    const OdDbDatabasePtr grouped = withGroups(database);
    if (grouped.get() != database.get())
        grouped->writeFile(folder + L"/newer.dxf");
    grouped->startUndoRecord();
    groupEverything(*grouped);
    while (grouped->hasUndo())
        grouped->undo();
    grouped->writeFile(folder + L"/undone.dxf");
    while (grouped->hasRedo())
        grouped->redo();
    grouped->writeFile(folder + L"/grouped.dxf");
    found["members"] = groupSize(*OdDbDatabase::readFile(folder + L"/grouped.dxf"));
    std::puts(QJsonDocument(found).toJson(QJsonDocument::Compact).constData());
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    try {
        return run(OdString(argv[1], CP_UTF8), OdString(argv[2], CP_UTF8));
    } catch (const OdError& error) {
        std::fprintf(stderr, "%d %s\n", error.code(), error.description().toUtf8().c_str());
        return 1;
    }
}
