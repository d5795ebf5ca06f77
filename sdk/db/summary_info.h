// The summary record of a drawing: title, author and the like, and custom properties.
#pragma once

#include "sdk/db/database.h"

#include <deque>

// A copy of the record as it was when it was read; oddbPutSummaryInfo stores it.
class OdDbDatabaseSummaryInfo : public OdRxObject {
    ODRX_DECLARE_CLASS(OdDbDatabaseSummaryInfo)
public:
    // In the order of the setters below.
    enum Field {
        kTitle,
        kSubject,
        kAuthor,
        kKeywords,
        kComments,
        kLastSavedBy,
        kRevisionNumber,
        kHyperlinkBase,
        kFieldCount
    };
    using CustomEntries = std::deque<std::pair<OdString, OdString>>; // a whole list is deleted from its front

    OdString getTitle() const { return fields[kTitle]; }
    void setTitle(const OdString& text) { fields[kTitle] = text; }
    OdString getSubject() const { return fields[kSubject]; }
    void setSubject(const OdString& text) { fields[kSubject] = text; }
    OdString getAuthor() const { return fields[kAuthor]; }
    void setAuthor(const OdString& text) { fields[kAuthor] = text; }
    OdString getKeywords() const { return fields[kKeywords]; }
    void setKeywords(const OdString& text) { fields[kKeywords] = text; }
    OdString getComments() const { return fields[kComments]; }
    void setComments(const OdString& text) { fields[kComments] = text; }
    OdString getLastSavedBy() const { return fields[kLastSavedBy]; }
    void setLastSavedBy(const OdString& text) { fields[kLastSavedBy] = text; }
    OdString getRevisionNumber() const { return fields[kRevisionNumber]; }
    void setRevisionNumber(const OdString& text) { fields[kRevisionNumber] = text; }
    OdString getHyperlinkBase() const { return fields[kHyperlinkBase]; }
    void setHyperlinkBase(const OdString& text) { fields[kHyperlinkBase] = text; }

    // Custom properties keep their order; names may repeat. Those that have no name in the drawing are not
    // among them, and oddbPutSummaryInfo keeps them where they are. Reading and deleting throw
    // OdError_InvalidIndex outside of the list; writing at or past the end adds one entry.
    int numCustomInfo() const { return static_cast<int>(custom.size()); }
    void getCustomSummaryInfo(int index, OdString& key, OdString& value) const;
    void setCustomSummaryInfo(int index, const OdString& key, const OdString& value);
    void deleteCustomSummaryInfo(int index);

    OdDbDatabase* database() const { return owner.get(); }
    void setDatabase(OdDbDatabase* database) { owner = OdDbDatabasePtr(database); }

    // A property without a name, behind so many with one.
    struct Nameless {
        std::size_t place;
        OdString value;
    };

    OdString fields[kFieldCount];
    CustomEntries custom;
    std::vector<Nameless> nameless;

private:
    std::size_t checkedIndex(int index) const;
    OdDbDatabasePtr owner;
};
using OdDbDatabaseSummaryInfoPtr = OdSmartPtr<OdDbDatabaseSummaryInfo>;

// Never null; the empty record of no database for a null database.
OdDbDatabaseSummaryInfoPtr oddbGetSummaryInfo(OdDbDatabase* database);
// Stores the record in its database, undone and aborted like any change. Throws eNotInDatabase without one.
void oddbPutSummaryInfo(const OdDbDatabaseSummaryInfo* info);
