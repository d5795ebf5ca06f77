// A group: an ordered set of entities under a name, which is its key in the drawing's group dictionary.
// Erased entities count as absent, and are members again when their erasure is undone.
#pragma once

#include "sdk/db/entity.h"

#include <unordered_set>

class OdDbGroupOrderChange;

class OdDbGroup : public OdDbObject {
    ODRX_DECLARE_CLASS(OdDbGroup)
public:
    OdDbGroup();
    OdString name() const;
    // The key it has is no change; the key of another entry throws eDuplicateKey. An anonymous group becomes
    // a named one.
    void setName(const OdString& name);
    OdString description() const;
    void setDescription(const OdString& text);
    bool isSelectable() const;
    void setSelectable(bool selectable);
    bool isAnonymous() const;
    // Gives the group a unique name "*A<n>" at once; nothing when it is anonymous already.
    void setAnonymous();
    // True for an erased group and for one that belongs to a reference ("file|name"): its members are not of
    // this drawing.
    bool isNotAccessible() const;

    unsigned numEntities() const;
    // Replaces what `ids` holds; gives their number.
    unsigned allEntityIds(OdDbObjectIdArray& ids) const;
    bool has(const OdDbEntity* entity) const;
    // Position from 0; throws eKeyNotFound when `id` is no member.
    void getIndex(OdDbObjectId id, unsigned& index) const;
    // At the end, in the order given; members stay where they are. Throws eNullObjectId.
    void append(OdDbObjectId id) { append(OdDbObjectIdArray{id}); }
    void append(const OdDbObjectIdArray& ids);
    // Throws eKeyNotFound, and removes nothing, when one of them is no member.
    void remove(OdDbObjectId id);
    void remove(const OdDbObjectIdArray& ids);
    void clear();
    // Moves `count` members from position `from` so that the first of them comes to stand at `to`; 0 moves
    // nothing. Throws OdError_InvalidIndex when a position or the end of the run lies outside.
    void transfer(unsigned from, unsigned to, unsigned count);
    void reverse();

    DxfTagList tagsForFile() const override;
    bool refersToErased() const override;

private:
    friend class OdDbGroupOrderChange;
    void contentReplaced() override { cached = false; }
    const std::unordered_set<const OdDbStub*>& memberSet() const;
    void contentSpliced(std::size_t position, std::size_t removed, std::size_t inserted) override;
    bool joinAppended(std::size_t position, std::size_t inserted);
    bool dropAppended(std::size_t position, std::size_t removed);
    void fillCache() const;
    OdDbStub* memberAt(std::size_t tag) const;
    void setTag(int code, std::string_view value);
    void rename(const OdString& name);
    bool isVisible(std::size_t member) const;
    std::vector<std::size_t> visibleMembers() const;
    // Has `move` move the members from position `first` on about among themselves, in the tags as well.
    template <class Move> void rearrange(std::size_t first, std::size_t count, Move move);
    void changeOrder(std::unique_ptr<OdDbGroupOrderChange> change);
    void cutOff(std::size_t count); // members from position `count` on
    void transferAmongErased(unsigned first, unsigned middle, unsigned last);

    OdString pendingName; // while it is in no drawing
    mutable bool cached = false;
    mutable std::vector<OdDbStub*> members; // null for a handle that leads nowhere
    mutable std::vector<std::size_t> memberTags;
    mutable std::unordered_set<const OdDbStub*> known; // the members; empty until it is first asked for
};
using OdDbGroupPtr = OdSmartPtr<OdDbGroup>;
