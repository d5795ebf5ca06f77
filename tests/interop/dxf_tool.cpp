// Reads, changes and saves drawings for the scripts that compare them with what other programs make of them.
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "sdk/db/layer_table.h"
#include "sdk/db/newer_version.h"
#include "sdk/db/summary_info.h"
#include "sdk/db/text.h"
#include "sdk/db/xref_man.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

namespace {

QString qt(const OdString& text) { return QString::fromStdWString(text.wide()); }
QString handleOf(OdDbObjectId id) { return qt(id.getHandle().ascii()); }

OdDbBlockTableRecordPtr modelSpace(OdDbDatabase& database, OdDb::OpenMode mode = OdDb::kForRead) {
    return odrxCast<OdDbBlockTableRecord>(database.getModelSpaceId().safeOpenObject(mode));
}

OdDbDictionaryPtr groups(OdDbDatabase& database, OdDb::OpenMode mode = OdDb::kForRead) {
    return odrxCast<OdDbDictionary>(database.getGroupDictionaryId(true).safeOpenObject(mode));
}

QJsonArray jsonPoint(const OdGePoint3d& p) { return {p.x, p.y, p.z}; }

QJsonObject reportEntities(OdDbDatabase& database) {
    QJsonObject counts;
    for (OdDbObjectIterator it = modelSpace(database)->newIterator(); !it.done(); it.step()) {
        const QString name = qt(it.entity()->dxfName());
        counts[name] = counts[name].toInt() + 1;
    }
    return counts;
}

QJsonArray reportTexts(OdDbDatabase& database) {
    QJsonArray texts;
    for (OdDbObjectIterator it = modelSpace(database)->newIterator(); !it.done(); it.step()) {
        if (const auto text = odrxQuery<OdDbText>(it.entity().get()); !text.isNull())
            texts.append(qt(text->textString()));
        if (const auto text = odrxQuery<OdDbMText>(it.entity().get()); !text.isNull())
            texts.append(qt(text->plainText()));
    }
    return texts;
}

QJsonObject reportGroups(OdDbDatabase& database) {
    QJsonObject result;
    if (database.getGroupDictionaryId().isNull())
        return result;
    for (auto it = groups(database)->newIterator(); !it->done(); it->next()) {
        const auto group = odrxCast<OdDbGroup>(it->getObject());
        QJsonArray members;
        OdDbObjectIdArray ids;
        group->allEntityIds(ids);
        for (const OdDbObjectId id : ids)
            members.append(handleOf(id));
        result[qt(it->name())] = QJsonObject{{"members", members},
                                             {"description", qt(group->description())},
                                             {"selectable", group->isSelectable()},
                                             {"anonymous", group->isAnonymous()}};
    }
    return result;
}

QJsonObject reportBlocks(OdDbDatabase& database) {
    QJsonObject result;
    const auto table = odrxCast<OdDbBlockTable>(database.getBlockTableId().safeOpenObject());
    for (OdDbSymbolTableIterator it = table->newIterator(); !it.done(); it.step()) {
        const auto block = odrxCast<OdDbBlockTableRecord>(it.getRecordId().safeOpenObject());
        result[qt(block->getName())] = QJsonObject{{"count", static_cast<int>(block->entityIds().size())},
                                                   {"xref", block->isFromExternalReference()},
                                                   {"overlay", block->isFromOverlayReference()},
                                                   {"path", qt(block->pathName())},
                                                   {"units", block->blockInsertUnits()}};
    }
    return result;
}

QJsonArray reportCustom(OdDbDatabase& database) {
    QJsonArray result;
    const auto info = oddbGetSummaryInfo(&database);
    for (int i = 0; i < info->numCustomInfo(); ++i) {
        OdString key, value;
        info->getCustomSummaryInfo(i, key, value);
        result.append(QJsonArray{qt(key), qt(value)});
    }
    return result;
}

QJsonArray reportViewports(OdDbDatabase& database) {
    QJsonArray numbers;
    const auto paper = odrxCast<OdDbBlockTableRecord>(database.getPaperSpaceId().safeOpenObject());
    for (OdDbObjectIterator it = paper->newIterator(); !it.done(); it.step())
        if (const auto viewport = odrxQuery<OdDbViewport>(it.entity().get()); !viewport.isNull())
            numbers.append(viewport->number());
    return numbers;
}

QJsonArray reportLayers(OdDbDatabase& database) {
    QJsonArray result;
    const auto table = odrxCast<OdDbLayerTable>(database.getLayerTableId().safeOpenObject());
    for (OdDbSymbolTableIterator it = table->newIterator(); !it.done(); it.step())
        result.append(qt(it.getRecord()->getName()));
    return result;
}

void report(OdDbDatabase& database) {
    const OdGeExtents3d extents = modelSpace(database)->extents();
    QJsonArray warnings;
    for (const OdString& warning : database.readWarnings())
        warnings.append(qt(warning));
    const auto info = oddbGetSummaryInfo(&database);
    const QJsonObject all{
        {"version", qt(database.versionName())},   {"entities", reportEntities(database)},
        {"texts", reportTexts(database)},          {"groups", reportGroups(database)},
        {"blocks", reportBlocks(database)},        {"layers", reportLayers(database)},
        {"viewports", reportViewports(database)},  {"title", qt(info->getTitle())},
        {"custom", reportCustom(database)},        {"warnings", warnings},
        {"extmin", jsonPoint(extents.minPoint())}, {"extmax", jsonPoint(extents.maxPoint())}};
    std::puts(QJsonDocument(all).toJson().constData());
}

void addGroup(OdDbDatabase& database, const OdString& name, const OdDbObjectIdArray& members) {
    OdDbGroupPtr group(new OdDbGroup);
    groups(database, OdDb::kForWrite)->setAt(name, group.get());
    group->append(members);
    group->setDescription(L"Gr\u00fc\u00dfe \u4e16\u754c");
}

void addLayer(OdDbDatabase& database, const OdString& name) {
    OdSmartPtr<OdDbLayerTableRecord> layer(new OdDbLayerTableRecord);
    layer->setName(name);
    odrxCast<OdDbLayerTable>(database.getLayerTableId().safeOpenObject(OdDb::kForWrite))->add(layer.get());
}

void addEntities(OdDbDatabase& database) {
    const OdDbBlockTableRecordPtr space = modelSpace(database, OdDb::kForWrite);
    OdDbLinePtr line(new OdDbLine);
    line->setEndPoint({100, 50, 0});
    line->setLayer(L"Added");
    space->appendOdDbEntity(line.get());
    OdDbArcPtr arc(new OdDbArc);
    arc->setCenter({10, 10, 0});
    arc->setColorIndex(1);
    space->appendOdDbEntity(arc.get());
    OdDbTextPtr text(new OdDbText);
    text->setTextString(L"\u00c4\u00d6\u00dc \u4e16");
    space->appendOdDbEntity(text.get());
    if (database.versionName() == OdString(L"AC1009"))
        return; // has no paragraphs
    OdDbMTextPtr paragraph(new OdDbMText);
    paragraph->setContents(OdString(std::wstring(600, L'x')));
    space->appendOdDbEntity(paragraph.get());
}

void setSummary(OdDbDatabase& database) {
    const auto info = oddbGetSummaryInfo(&database);
    info->setTitle(L"T\u00eftle");
    info->setComments(L"two\nlines");
    info->setCustomSummaryInfo(99, L"key", L"value");
    info->setCustomSummaryInfo(99, L"key", L"\u4e16\u754c");
    oddbPutSummaryInfo(info.get());
}

void addReference(OdDbDatabase& database, const OdString& path) {
    const OdDbObjectId block = OdDbXRefManExt::addNewXRefDefBlock(&database, path, L"Attached", true);
    OdDbBlockReferencePtr reference(new OdDbBlockReference);
    reference->setBlockTableRecord(block);
    reference->setPosition({5, 6, 0});
    modelSpace(database, OdDb::kForWrite)->appendOdDbEntity(reference.get());
}

// Everything that the commands of the host change, at once.
void change(OdDbDatabase& database, const QString& what) {
    if (what.contains("layer"))
        addLayer(database, L"Added");
    if (what.contains("entities"))
        addEntities(database);
    const OdDbObjectIdArray all = modelSpace(database)->entityIds();
    if (what.contains("group-first"))
        addGroup(database, L"First", {all.front()});
    else if (what.contains("group"))
        addGroup(database, L"Everything", all);
    if (what.contains("summary"))
        setSummary(database);
    if (what.contains("xref"))
        addReference(database, L"other.dxf");
    if (what.contains("erase"))
        modelSpace(database)->entityIds().front().safeOpenObject(OdDb::kForWrite)->erase(true);
}

int run(int argc, char** argv) {
    const QString command = argc > 2 ? argv[1] : "";
    if (command == "new") {
        const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
        change(*database, argc > 3 ? argv[3] : "");
        database->writeFile(OdString(argv[2], CP_UTF8));
        return 0;
    }
    if (argc < 3)
        return 2;
    const OdDbDatabasePtr database = OdDbDatabase::readFile(OdString(argv[2], CP_UTF8));
    if (command == "report")
        report(*database);
    if (command == "newer" && argc > 4) {
        change(*database, argv[4]);
        std::vector<OdString> leftOut;
        odDbInNewerVersion(*database, leftOut)->writeFile(OdString(argv[3], CP_UTF8));
        for (const OdString& what : leftOut)
            std::puts(what.toUtf8().c_str());
    }
    if (command == "change" && argc > 4)
        change(*database, argv[4]);
    if ((command == "copy" || command == "change") && argc > 3)
        database->writeFile(OdString(argv[3], CP_UTF8));
    return 0;
}

} // namespace

// Usage: report IN | copy IN OUT | change IN OUT WHAT | new OUT WHAT
int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const OdError& error) {
        std::fprintf(stderr, "%d %s\n", error.code(), error.description().toUtf8().c_str());
        return 1;
    }
}
