// Path handling, change rules and copying of one section.
#include "standin/params/section.h"

#include "standin/params/mem_param.h"

#include <vector>

namespace standin {

namespace {

std::string_view plain(const char* name) { return name ? std::string_view(name) : std::string_view(); }

// Takes the first part off a path; `last` tells whether it was the only one.
std::string_view takePart(std::string_view& path, bool& last) {
    const auto delimiter = path.find_first_of("\\/");
    const std::string_view part = path.substr(0, delimiter);
    last = delimiter == std::string_view::npos;
    path.remove_prefix(last ? path.size() : delimiter + 1);
    return part;
}

// Holds copies of the names, so that they are valid until the enumerator is released, whatever happens to the
// tree meanwhile.
class NameEnum : public CKWUnknownImpl<IParamEnum> {
public:
    explicit NameEnum(const Section::Children& children) {
        names.reserve(children.size());
        for (const auto& entry : children)
            names.push_back(entry.name);
    }
    int next(int, const char** name, int) override {
        if (position == names.size())
            return 0;
        *name = names[position++].c_str();
        return 1;
    }

private:
    std::vector<std::string> names;
    std::size_t position = 0;
};

void hand(const CKWVariant& value, tagKWVARIANT* out) {
    if (out->vt == kVtWideString && value.vt == kVtString) {
        CKWVariant wide;
        wide = CXStringW(static_cast<char*>(value));
        KWVariantCopy(out, wide);
    } else {
        KWVariantCopy(out, value);
    }
}

} // namespace

void Section::changed() const {
    if (rules && rules->changed)
        rules->changed();
}

Ref<MemParam> Section::child(std::string_view name, bool create) {
    if (const Ref<MemParam>* found = ownChildren.find(name))
        return *found;
    if (!create || !mayChange())
        return nullptr;
    auto made = newChild(name);
    ownChildren[name] = made;
    changed();
    return made;
}

Ref<MemParam> Section::newChild(std::string_view name) const {
    return Ref<MemParam>::share(
        new MemParam(rules, ownPath.empty() ? std::string(name) : ownPath + '/' + std::string(name)));
}

Ref<MemParam> Section::find(const std::string& sectionPath) const {
    std::string_view rest = sectionPath;
    bool last = false;
    const Ref<MemParam>* node = ownChildren.find(takePart(rest, last));
    while (node && !last)
        node = (*node)->section().children().find(takePart(rest, last));
    return node ? *node : nullptr;
}

CKWVariant Section::served(std::string_view name, const CKWVariant& value) const {
    if (!rules || rules->ranges.empty())
        return value;
    const auto range = rules->ranges.find(ownPath + '/' + std::string(name));
    return range == rules->ranges.end() ? value : withinRange(value, range->second);
}

Ref<MemParam> Section::openSection(const char* path, bool create) {
    std::string_view rest = plain(path);
    bool last = false;
    Ref<MemParam> node = child(takePart(rest, last), create);
    while (node && !last)
        node = node->section().child(takePart(rest, last), create);
    return node;
}

Ref<MemParam> Section::createChild(const char* path) {
    if (!mayChange())
        return nullptr;
    Ref<MemParam> made = openSection(path, true);
    if (made)
        made->section().reset();
    return made;
}

void Section::removeEntry(const char* path) {
    const std::string_view whole = plain(path);
    const auto delimiter = whole.find_last_of("\\/");
    if (delimiter != std::string_view::npos) {
        const auto parent = openSection(std::string(whole.substr(0, delimiter)).c_str(), false);
        if (parent)
            parent->section().removeEntry(std::string(whole.substr(delimiter + 1)).c_str());
    } else if (mayChange() && ownChildren.remove(whole)) {
        changed();
    }
}

void Section::clear() {
    if (ownChildren.empty() || !mayChange())
        return;
    ownChildren.clear();
    changed();
}

Ref<IParamEnum> Section::newEnum() const { return Ref<IParamEnum>::share(new NameEnum(ownChildren)); }

int Section::getValue(const char* name, tagKWVARIANT* out) const {
    const CKWVariant* found = ownValues.find(plain(name));
    if (found && out)
        hand(served(plain(name), *found), out);
    return found ? 1 : 0;
}

int Section::setValue(const char* name, const tagKWVARIANT* in) {
    if (!in || !mayChange())
        return 0;
    ownValues[plain(name)] = CKWVariant(*in);
    changed();
    return 1;
}

void Section::removeValue(const char* name) {
    if (mayChange() && ownValues.remove(plain(name)))
        changed();
}

void Section::mergeFrom(const Section& other) {
    for (const auto& entry : other.ownValues)
        ownValues[entry.name] = entry.value;
    for (const auto& entry : other.ownChildren) {
        Ref<MemParam>& mine = ownChildren[entry.name];
        if (!mine)
            mine = newChild(entry.name);
        mine->section().mergeFrom(entry.value->section());
    }
}

void Section::copyFrom(const Section& other) {
    if (&other == this || !mayChange())
        return;
    mergeFrom(other);
    changed();
}

void Section::reset() {
    ownValues.clear();
    ownChildren.clear();
    changed();
}

Section* sectionOf(IParam* node) {
    auto* owner = dynamic_cast<SectionOwner*>(node);
    return owner ? &owner->section() : nullptr;
}

} // namespace standin
