#include "tests/groups/group_fixture.h"

#include "host/param.h"

#include <algorithm>

GroupTest::GroupTest() : formerVariables(odDbApplicationVariables()) {
    odDbSetApplicationVariables(&drawingVariables);
    for (int i = 0; i < 6; ++i)
        addLine();
    FixtureDocument& document = host.openDocument(database);
    document.io = &io;
    document.editorSelection = &selection;
    host.documents.io = &io;
    setPickStyle(1);
    window.setObjectName(QStringLiteral("window"));
    standin::registry().dialogParent = &window;
}

GroupTest::~GroupTest() { odDbSetApplicationVariables(formerVariables); }

OdDbObjectId GroupTest::addLine() {
    OdDbLinePtr line(new OdDbLine);
    line->setEndPoint({static_cast<double>(lines.size()) + 1, 0, 0});
    const auto space =
        odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    lines.push_back(space->appendOdDbEntity(line.get()));
    return lines.back();
}

OdDbDictionaryPtr GroupTest::dictionary(OdDb::OpenMode mode) const {
    return odrxCast<OdDbDictionary>(database->getGroupDictionaryId(true).safeOpenObject(mode));
}

OdDbObjectId GroupTest::addGroup(const wchar_t* name, const OdDbObjectIdArray& ids,
                                 const wchar_t* description) {
    const OdDbGroupPtr made(new OdDbGroup);
    const OdDbObjectId id = dictionary(OdDb::kForWrite)->setAt(name, made.get());
    made->append(ids);
    made->setDescription(description);
    return id;
}

OdDbObjectId GroupTest::addUnnamed(const OdDbObjectIdArray& ids) {
    const OdDbGroupPtr made(new OdDbGroup);
    made->setAnonymous();
    const OdDbObjectId id = dictionary(OdDb::kForWrite)->setAt(made->name(), made.get());
    made->append(ids);
    return id;
}

OdDbObjectId GroupTest::addForeignObject(const wchar_t* key) {
    const OdDbDictionaryPtr inner(new OdDbDictionary);
    return dictionary(OdDb::kForWrite)->setAt(key, inner.get());
}

OdDbGroupPtr GroupTest::group(const wchar_t* name, OdDb::OpenMode mode) const {
    return odrxCast<OdDbGroup>(dictionary()->getAt(name, mode));
}

std::vector<int> GroupTest::members(const wchar_t* name) const {
    OdDbObjectIdArray ids;
    group(name)->allEntityIds(ids);
    std::vector<int> indexes;
    for (const OdDbObjectId id : ids)
        indexes.push_back(static_cast<int>(std::find(lines.begin(), lines.end(), id) - lines.begin()));
    return indexes;
}

OdDbObjectIdArray GroupTest::pick(const std::vector<int>& indexes) const {
    OdDbObjectIdArray ids;
    for (const int index : indexes)
        ids.push_back(lines.at(static_cast<std::size_t>(index)));
    return ids;
}

std::vector<int> GroupTest::highlightedLines() const {
    std::vector<int> indexes;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const OdDbEntityPtr entity = odrxQuery<OdDbEntity>(lines[i].openObject().get());
        if (!entity.isNull() && entity->isHighlighted())
            indexes.push_back(static_cast<int>(i));
    }
    return indexes;
}

int GroupTest::pickStyle() const {
    const OdResBufPtr value = host.vars.value("PICKSTYLE");
    return value.isNull() ? -1 : value->getInt8();
}

std::string GroupTest::drawingText() const {
    std::string text = database->writeBytes();
    const std::size_t seed = text.find("$HANDSEED");
    const std::size_t next = text.find("\n  9\n", seed);
    return text.erase(seed, next - seed);
}

Ref<IParam> GroupTest::groupNameParams(const wchar_t* name) const {
    const Ref<IParam> params = Ref<IParam>::take(new_MemParam());
    const CKWVariant value{CXStringW(name)};
    params->setValue("GroupName", &value);
    return params;
}

namespace {
std::wstring numbers(const std::vector<int>& list) {
    std::wstring text;
    for (const int number : list)
        text += L' ' + std::to_wstring(number);
    return text;
}
} // namespace

std::wstring GroupTest::summary() const {
    std::wstring text;
    for (const auto entry = dictionary()->newIterator(); !entry->done(); entry->next()) {
        const auto one = odrxQuery<OdDbGroup>(entry->getObject().get());
        // The numbers of anonymous names go on from one drawing to the next.
        const bool anonymous = !one.isNull() && one->isAnonymous();
        text += L"group " + (anonymous ? std::wstring(L"*") : entry->name().wide()) + L":";
        if (!one.isNull())
            text += numbers(members(entry->name().c_str())) +
                    (one->isSelectable() ? L"" : L", not selectable") + (anonymous ? L", unnamed" : L"") +
                    (one->description().isEmpty() ? L"" : L", \"" + one->description().wide() + L"\"");
        text += L"\n";
    }
    std::vector<int> selectedLines;
    for (const OdDbObjectId id : selection.selected())
        selectedLines.push_back(static_cast<int>(std::find(lines.begin(), lines.end(), id) - lines.begin()));
    text += L"highlighted:" + numbers(highlightedLines()) + L"\nselected:" + numbers(selectedLines);
    text += L"\nPICKSTYLE: " + std::to_wstring(pickStyle());
    return text + L"\ntransactions: " + std::to_wstring(database->numActiveTransactions()) + L"\n";
}
