// The tags of one object: those it was read with, as the bytes they are, and those that were set since.
#pragma once

#include "sdk/dxf/tag.h"
#include "sdk/ge/point3d.h"

#include <deque>
#include <memory>
#include <vector>

// Texts that were set. Lists that are copies of one another share them.
struct DxfTextPool {
    std::deque<std::string> texts;
};

class DxfTagList {
public:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);
    struct Range {
        std::size_t begin, end;
    };

    // Tags of `bytes`, which lie in the pool's source. Throws DxfFault.
    static DxfTagList parse(std::string_view bytes, std::shared_ptr<const std::string> source,
                            bool carriageReturns);

    std::size_t size() const { return tags.size(); }
    bool empty() const { return tags.empty(); }
    const DxfTag& operator[](std::size_t index) const { return tags[index]; }
    std::vector<DxfTag>::const_iterator begin() const { return tags.begin(); }
    std::vector<DxfTag>::const_iterator end() const { return tags.end(); }
    std::string bytes() const;
    Range whole() const { return {0, tags.size()}; }
    // The record's own tags: up to an embedded object or the extended data.
    Range own() const { return {0, ownEnd()}; }
    // What follows the subclass marker up to the next marker; everything of the record's own where the marker
    // is missing (old versions) or has nothing behind it (writers that put their data before it).
    Range subclass(std::string_view name) const;
    // Behind the start of the embedded object up to the extended data; empty without one.
    Range embedded() const;
    // The first tag with the code, outside of {...} groups.
    std::size_t find(int code, Range range) const;
    std::size_t find(int code) const { return find(code, own()); }
    // The same in a subclass, which is read no further than to the tag; where that lacks the code, among all
    // of the record's own tags.
    std::size_t find(std::string_view subclassName, int code) const;

    void append(int code, std::string_view value) { insert(tags.size(), code, value); }
    void insert(std::size_t position, int code, std::string_view value);
    void replace(std::size_t position, std::string_view value);
    void erase(std::size_t position, std::size_t count = 1);
    // Some of the tags as a list of the same style; an empty range gives an empty one.
    DxfTagList part(Range range) const;
    // Puts the tags of `other` in the place of `count` tags, which `other` holds afterwards.
    void exchange(std::size_t position, std::size_t count, DxfTagList& other);
    // Hands the `count` tags at `places` to `move`, as a pair of iterators: it may move them about among
    // themselves and no more.
    template <class Move> void rearrange(const std::size_t* places, std::size_t count, Move move);
    // Replaces the tag that find() gives for the subclass, or puts a new one at the subclass's end.
    void set(std::string_view subclassName, int code, std::string_view value);
    void remove(std::string_view subclassName, int code);
    // Where a new tag of the subclass belongs: at the end of it, or of the record's own where it is missing.
    std::size_t endOf(std::string_view subclassName) const;
    // Writes every text that was set with the given line ends.
    void restyle(bool carriageReturns);

    double real(Range range, int code, double otherwise = 0) const;
    std::int64_t integer(Range range, int code, std::int64_t otherwise = 0) const;
    OdGePoint3d point(Range range, int code) const; // codes, code + 10, code + 20
    // Of the tag that find() gives for the subclass.
    double real(std::string_view subclassName, int code, double otherwise = 0) const;
    std::int64_t integer(std::string_view subclassName, int code, std::int64_t otherwise = 0) const;
    OdGePoint3d point(std::string_view subclassName, int code) const;
    std::vector<OdGePoint3d> points(Range range, int code) const; // all of them; what a point lacks is 0
    void setPoint(std::string_view subclassName, int code, const OdGePoint3d& value);

private:
    std::size_t ownEnd() const;
    Range marked(std::string_view name) const; // {npos, npos} without the marker
    Range restOf(std::string_view subclassName, std::size_t found) const;
    DxfTag makeTag(int code, std::string_view value);
    DxfTextPool& ownPool();
    void adoptTexts(DxfTagList& other);
    std::vector<DxfTag> tags;
    std::shared_ptr<DxfTextPool> pool;
    std::shared_ptr<const std::string> source;
    bool withCarriageReturns = false;
};

template <class Move> void DxfTagList::rearrange(const std::size_t* places, std::size_t count, Move move) {
    if (count == 0)
        return;
    const auto first = tags.begin() + static_cast<std::ptrdiff_t>(places[0]);
    if (places[count - 1] == places[0] + count - 1) {
        move(first, first + static_cast<std::ptrdiff_t>(count));
        return;
    }
    std::vector<DxfTag> moved;
    for (std::size_t i = 0; i < count; ++i)
        moved.push_back(tags[places[i]]);
    move(moved.begin(), moved.end());
    for (std::size_t i = 0; i < count; ++i)
        tags[places[i]] = moved[i];
}
