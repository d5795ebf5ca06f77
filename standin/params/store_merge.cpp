// Three-way merge of parameter trees.
#include "standin/params/store_merge.h"

#include "standin/params/mem_param.h"
#include "standin/params/yaml_scalar.h"
#include "standin/params/yaml_tree.h"

#include <string>
#include <vector>

namespace standin {

namespace {

// Missing entries and equal texts count as the same state.
std::optional<std::string> stateOf(const CKWVariant* value) {
    return value ? valueToYaml(*value) : std::nullopt;
}
std::optional<std::string> stateOf(const Section* section) {
    return section ? std::optional(writeYaml(*section)) : std::nullopt;
}

const Section* childOf(const Section* section, const std::string& name) {
    const Ref<MemParam>* child = section ? section->children().find(name) : nullptr;
    return child ? &(*child)->section() : nullptr;
}

const CKWVariant* valueOf(const Section* section, const std::string& name) {
    return section ? section->values().find(name) : nullptr;
}

// Names of the first map, then those that only the second has.
template <class Entries> std::vector<std::string> namesOf(const Entries& first, const Entries* second) {
    std::vector<std::string> names;
    for (const auto& entry : first)
        names.push_back(entry.name);
    if (!second)
        return names;
    for (const auto& entry : *second)
        if (!first.find(entry.name))
            names.push_back(entry.name);
    return names;
}

// The merge of one tree: collects on its way what was overruled.
class Merge {
public:
    void sections(Section& ours, const Section* base, const Section& theirs, int wholeDepth,
                  const std::string& path);
    void root(Section& ours, const Section& base, const Section& theirs);
    std::vector<Overruled> overruled;

private:
    void values(Section& ours, const Section* base, const Section& theirs, const std::string& path);
    void wholeChild(Section& ours, const std::string& name, const Section* base, const Section* theirs,
                    const std::string& path);
};

void Merge::values(Section& ours, const Section* base, const Section& theirs, const std::string& path) {
    for (const std::string& name : namesOf(theirs.values(), base ? &base->values() : nullptr)) {
        const auto before = stateOf(valueOf(base, name)), our = stateOf(ours.values().find(name));
        const CKWVariant* const value = theirs.values().find(name);
        const auto their = stateOf(value);
        if (their == before || their == our)
            continue;
        if (our != before)
            overruled.push_back({path + name, false, their});
        else if (value)
            ours.setValue(name.c_str(), value);
        else
            ours.removeValue(name.c_str());
    }
}

void replaceChild(Section& ours, const std::string& name, const Section* theirs) {
    ours.removeEntry(name.c_str());
    if (theirs)
        ours.openSection(name.c_str(), true)->section().copyFrom(*theirs);
}

void Merge::wholeChild(Section& ours, const std::string& name, const Section* base, const Section* theirs,
                       const std::string& path) {
    const auto before = stateOf(base), their = stateOf(theirs), our = stateOf(childOf(&ours, name));
    if (their == before || their == our)
        return;
    if (our != before)
        overruled.push_back({path + name, true, their});
    else
        replaceChild(ours, name, theirs);
}

void Merge::sections(Section& ours, const Section* base, const Section& theirs, int wholeDepth,
                     const std::string& path) {
    values(ours, base, theirs, path);
    for (const std::string& name : namesOf(theirs.children(), base ? &base->children() : nullptr)) {
        const Section* their = childOf(&theirs, name);
        const Ref<MemParam> our = ours.openSection(name.c_str(), false);
        if (wholeDepth > 1 && their && our)
            sections(our->section(), childOf(base, name), *their, wholeDepth - 1, path + name + '/');
        else
            wholeChild(ours, name, childOf(base, name), their, path);
    }
}

void Merge::root(Section& ours, const Section& base, const Section& theirs) {
    const auto before = stateOf(&base), their = stateOf(&theirs), our = stateOf(&ours);
    if (their == before || their == our)
        return;
    if (our != before) {
        overruled.push_back({{}, true, their});
        return;
    }
    ours.reset();
    ours.copyFrom(theirs);
}

} // namespace

std::vector<Overruled> mergeInto(Section& ours, const Section& base, const Section& theirs, int wholeDepth) {
    Merge merge;
    if (wholeDepth > 0)
        merge.sections(ours, &base, theirs, wholeDepth, {});
    else
        merge.root(ours, base, theirs);
    return std::move(merge.overruled);
}

} // namespace standin
