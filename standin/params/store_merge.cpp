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

void mergeValues(Section& ours, const Section* base, const Section& theirs) {
    for (const std::string& name : namesOf(theirs.values(), base ? &base->values() : nullptr)) {
        const auto before = stateOf(valueOf(base, name));
        const CKWVariant* their = theirs.values().find(name);
        if (stateOf(their) == before || stateOf(ours.values().find(name)) != before)
            continue;
        if (their)
            ours.setValue(name.c_str(), their);
        else
            ours.removeValue(name.c_str());
    }
}

void replaceChild(Section& ours, const std::string& name, const Section* theirs) {
    ours.removeEntry(name.c_str());
    if (theirs)
        ours.openSection(name.c_str(), true)->section().copyFrom(*theirs);
}

// 1 when both have changed it differently.
int mergeWholeChild(Section& ours, const std::string& name, const Section* base, const Section* theirs) {
    const auto before = stateOf(base), their = stateOf(theirs), our = stateOf(childOf(&ours, name));
    if (their == before || their == our)
        return 0;
    if (our != before)
        return 1;
    replaceChild(ours, name, theirs);
    return 0;
}

int mergeSections(Section& ours, const Section* base, const Section& theirs, int wholeDepth) {
    mergeValues(ours, base, theirs);
    int lost = 0;
    for (const std::string& name : namesOf(theirs.children(), base ? &base->children() : nullptr)) {
        const Section* their = childOf(&theirs, name);
        const Ref<MemParam> our = ours.openSection(name.c_str(), false);
        if (wholeDepth > 1 && their && our)
            lost += mergeSections(our->section(), childOf(base, name), *their, wholeDepth - 1);
        else
            lost += mergeWholeChild(ours, name, childOf(base, name), their);
    }
    return lost;
}

} // namespace

int mergeInto(Section& ours, const Section& base, const Section& theirs, int wholeDepth) {
    if (wholeDepth > 0)
        return mergeSections(ours, &base, theirs, wholeDepth);
    const auto before = stateOf(&base), their = stateOf(&theirs), our = stateOf(&ours);
    if (their == before || their == our)
        return 0;
    if (our != before)
        return 1;
    ours.reset();
    ours.copyFrom(theirs);
    return 0;
}

} // namespace standin
