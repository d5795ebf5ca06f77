// The free functions of the host over parameter trees.
#include "standin/params/mem_param.h"

#include "host/typed_reads.h"

IParam* new_MemParam() { return standin::newTree<IParam>().detach(); }

namespace {

// For a target of another make, which can only be reached through its interface.
void copyThroughInterface(const standin::Section& from, IParam* to) {
    for (const auto& entry : from.values())
        to->setValue(entry.name.c_str(), &entry.value);
    for (const auto& entry : from.children()) {
        const auto child = openChild(to, entry.name.c_str(), 1);
        if (child)
            copyThroughInterface(entry.value->section(), child.get());
    }
}

// A source of another make tells its sections, but not the names of its values.
void copySections(IParam* from, IParam* to) {
    for (const std::string& name : childNames(from)) {
        const auto source = openChild(from, name.c_str());
        const auto target = openChild(to, name.c_str(), 1);
        Param_CopyTo(source.get(), target.get());
    }
}

} // namespace

void Param_CopyTo(IParam* from, IParam* to) {
    if (!from || !to)
        return;
    const standin::Section* source = standin::sectionOf(from);
    standin::Section* target = standin::sectionOf(to);
    if (source && target)
        target->copyFrom(*source);
    else if (source)
        copyThroughInterface(*source, to);
    else
        copySections(from, to);
}
