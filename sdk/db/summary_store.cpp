// Each version keeps the summary elsewhere: header values, or a record in the root dictionary.
#include "sdk/db/summary_store.h"

#include "sdk/db/database_impl.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/xrecord.h"

#include <algorithm>

namespace {

using Info = OdDbDatabaseSummaryInfo;

constexpr const char* kHeaderNames[Info::kFieldCount] = {"$TITLE",          "$SUBJECT",      "$AUTHOR",
                                                         "$KEYWORDS",       "$COMMENTS",     "$LASTSAVEDBY",
                                                         "$REVISIONNUMBER", "$HYPERLINKBASE"};

constexpr const wchar_t* kRecordName = L"DWGPROPS";
constexpr std::string_view kCookie = "DWGPROPS COOKIE";
// Codes of the fields in the record; the second text with code 1, behind the cookie, is the hyperlink base.
constexpr int kRecordCodes[Info::kFieldCount] = {2, 3, 4, 7, 6, 8, 9, 1};
constexpr int kFirstCustom = 300;
constexpr int kLastCustom = 309;

void take(Info& info, const OdString& name, const OdString& value) {
    if (name.isEmpty())
        info.nameless.push_back({info.custom.size(), value});
    else
        info.custom.emplace_back(name, value);
}

// All that goes into the file, in its order.
Info::CustomEntries allProperties(const Info& info) {
    Info::CustomEntries all = info.custom;
    for (std::size_t i = 0; i < info.nameless.size(); ++i) {
        const auto place = std::min(info.nameless[i].place + i, all.size());
        all.emplace(all.begin() + static_cast<std::ptrdiff_t>(place), OdString(), info.nameless[i].value);
    }
    return all;
}

OdDbXrecordPtr summaryRecord(OdDbDatabase& database, OdDb::OpenMode mode) {
    const auto root = odrxCast<OdDbDictionary>(database.getNamedObjectsDictionaryId().safeOpenObject());
    return odrxQuery<OdDbXrecord>(root->getAt(kRecordName, mode).get());
}

void readRecord(const OdDbXrecord& record, const DxfCodec& codec, Info& info) {
    const DxfTagList& tags = record.tags();
    const DxfTagList::Range range = record.dataRange();
    for (std::size_t i = range.begin; i < range.end; ++i) {
        const std::string_view value = tags[i].value();
        if (value == kCookie)
            continue;
        for (int field = 0; field < Info::kFieldCount; ++field)
            if (tags[i].code == kRecordCodes[field])
                info.fields[field] = codec.decode(value);
        const std::size_t equals = value.find('=');
        if (tags[i].code >= kFirstCustom && tags[i].code <= kLastCustom && equals != std::string_view::npos)
            take(info, codec.decode(value.substr(0, equals)), codec.decode(value.substr(equals + 1)));
    }
}

OdDbXrecordPtr createRecord(OdDbDatabase& database) {
    const auto root =
        odrxCast<OdDbDictionary>(database.getNamedObjectsDictionaryId().safeOpenObject(OdDb::kForWrite));
    OdDbXrecordPtr record(new OdDbXrecord);
    root->setAt(kRecordName, record.get());
    record->edit().append(1, kCookie);
    return record;
}

void eraseTexts(DxfTagList& tags, const DxfTagList::Range& range) {
    for (std::size_t i = range.end; i-- > range.begin;) {
        const int code = tags[i].code;
        const bool isField = code >= 1 && code <= 9 && tags[i].value() != kCookie;
        if (isField || (code >= kFirstCustom && code <= kLastCustom))
            tags.erase(i);
    }
}

} // namespace

bool odDbKeepsSummaryInHeader(const OdDbDatabase& database) {
    const int version = database.impl().version;
    return version >= kVersionR2004 || version < kVersionR13;
}

void odDbReadSummary(OdDbDatabase& database, Info& info) {
    const OdDbDatabaseImpl& impl = database.impl();
    if (!odDbKeepsSummaryInHeader(database)) {
        const OdDbXrecordPtr record = summaryRecord(database, OdDb::kForRead);
        if (!record.isNull())
            readRecord(*record, impl.codec, info);
        return;
    }
    for (int field = 0; field < Info::kFieldCount; ++field)
        info.fields[field] = impl.codec.decode(impl.header.value(kHeaderNames[field]));
    for (const auto& [key, value] : impl.header.customProperties())
        take(info, impl.codec.decode(key), impl.codec.decode(value));
}

bool odDbWriteSummaryToHeader(OdDbDatabase& database, const Info& info) {
    OdDbDatabaseImpl& impl = database.impl();
    Info former;
    odDbReadSummary(database, former);
    bool changed = false;
    for (int field = 0; field < Info::kFieldCount; ++field) {
        if (former.fields[field] == info.fields[field])
            continue;
        impl.header.set(kHeaderNames[field], 1, impl.codec.encode(info.fields[field]));
        changed = true;
    }
    const Info::CustomEntries all = allProperties(info);
    if (allProperties(former) == all)
        return changed;
    std::vector<std::pair<std::string, std::string>> properties;
    for (const auto& [key, value] : all)
        properties.emplace_back(impl.codec.encode(key), impl.codec.encode(value));
    impl.header.setCustomProperties(properties);
    return true;
}

bool odDbIsSummaryVariable(std::string_view name) {
    return name.substr(0, 15) == "$CUSTOMPROPERTY" ||
           std::find(std::begin(kHeaderNames), std::end(kHeaderNames), name) != std::end(kHeaderNames);
}

namespace {

void fillRecord(DxfTagList& tags, const OdDbXrecord& record, const DxfCodec& codec, const Info& info) {
    eraseTexts(tags, record.dataRange());
    std::size_t place = tags.find(1, record.dataRange()); // the cookie
    place = place == DxfTagList::npos ? record.dataRange().begin : place + 1;
    for (int field = 0; field < Info::kHyperlinkBase; ++field)
        tags.insert(place++, kRecordCodes[field], codec.encode(info.fields[field]));
    int code = kFirstCustom;
    for (const auto& [key, value] : allProperties(info)) {
        tags.insert(place++, code, codec.encode(key + OdString(L"=") + value));
        code = code == kLastCustom ? kLastCustom : code + 1;
    }
    tags.insert(place, kRecordCodes[Info::kHyperlinkBase], codec.encode(info.fields[Info::kHyperlinkBase]));
}

bool isSameSummary(OdDbDatabase& database, const Info& info) {
    Info present;
    odDbReadSummary(database, present);
    return allProperties(present) == allProperties(info) &&
           std::equal(present.fields, present.fields + Info::kFieldCount, info.fields);
}

} // namespace

bool odDbWriteSummaryRecord(OdDbDatabase& database, const Info& info) {
    if (isSameSummary(database, info))
        return false;
    OdDbXrecordPtr record = summaryRecord(database, OdDb::kForWrite);
    if (record.isNull())
        record = createRecord(database);
    fillRecord(record->edit(), *record, database.impl().codec, info);
    return true;
}

void odDbStampSummaryRecord(OdDbDatabase& database, const Info& info) {
    const OdDbXrecordPtr record = summaryRecord(database, OdDb::kForRead);
    if (!record.isNull() && !isSameSummary(database, info))
        fillRecord(database.impl().editUnrecorded(*record), *record, database.impl().codec, info);
}
