// One section of a parameter tree: its named values and its child sections, each in order of insertion. The
// interfaces over it are in mem_param.h.
#pragma once

#include "host/param.h"
#include "standin/params/ordered_map.h"
#include "standin/params/value_ranges.h"

#include <functional>
#include <memory>

namespace standin {

// What a whole tree shares.
struct TreeRules {
    std::function<bool()> mayChange; // asked before each change; empty: yes. A refused change does nothing.
    std::function<void()> changed;   // told after each change
    ValueRanges ranges;              // a number beyond its range is handed out as the end of it
};
using TreeRulesPtr = std::shared_ptr<TreeRules>;

template <class I> class ParamOf;
using MemParam = ParamOf<IParam>;

// The operations of IParam on one section. Section names may be paths with '\' and '/'; each part counts, an
// empty one too, so that no name can mean the section itself. Value names are plain.
class Section {
public:
    using Values = OrderedMap<CKWVariant>;
    using Children = OrderedMap<Ref<MemParam>>;

    // `pathFromRoot` has '/' between its parts and is empty for the root itself.
    explicit Section(TreeRulesPtr treeRules, std::string pathFromRoot = {})
        : rules(std::move(treeRules)), ownPath(std::move(pathFromRoot)) {}

    Ref<MemParam> createChild(const char* path); // an existing one is emptied; null when refused
    Ref<MemParam> openSection(const char* path, bool create);
    Ref<MemParam> find(const std::string& path) const; // null when there is no such section
    void removeEntry(const char* path);
    void clear(); // the children; the values stay
    Ref<IParamEnum> newEnum() const;
    int getValue(const char* name, tagKWVARIANT* out) const;
    int setValue(const char* name, const tagKWVARIANT* in);
    void removeValue(const char* name);

    const Values& values() const { return ownValues; }
    const Children& children() const { return ownChildren; }
    // Copies values and children over what is there; one change of the tree.
    void copyFrom(const Section& other);
    // Drops all values and children.
    void reset();

private:
    bool mayChange() const { return !rules || !rules->mayChange || rules->mayChange(); }
    void changed() const;
    Ref<MemParam> child(std::string_view name, bool create);
    Ref<MemParam> newChild(std::string_view name) const;
    CKWVariant served(std::string_view name, const CKWVariant& value) const;
    void mergeFrom(const Section& other);

    Values ownValues;
    Children ownChildren;
    TreeRulesPtr rules;
    std::string ownPath;
};

// Implemented by every node of these trees, so that code of the stand-in can look at values without knowing
// their names.
class SectionOwner {
public:
    virtual Section& section() = 0;

protected:
    ~SectionOwner() = default;
};

// The section behind a node; null for a node of another make.
Section* sectionOf(IParam* node);

} // namespace standin
