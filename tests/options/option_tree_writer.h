// Writes an option tree into the host's configuration, node by node.
#pragma once

#include "host/typed_reads.h"

class OptionTreeWriter {
public:
    explicit OptionTreeWriter(Ref<IParam> target) : section(std::move(target)) {}

    // Opens the child, making it where it is missing.
    OptionTreeWriter node(const char* name) const {
        return OptionTreeWriter(Ref<IParam>::take(section->openSection(name, 1)));
    }
    template <class Value> const OptionTreeWriter& set(const char* name, const Value& value) const {
        writeValue(section.get(), name, value);
        return *this;
    }
    const OptionTreeWriter& type(const wchar_t* name) const { return set("Type", name); }
    // A profile value, or a system variable.
    const OptionTreeWriter& profile(const char* sectionName, const char* key) const {
        return set("IFace", "IProfile").set("Section", sectionName).set("Key", key);
    }
    const OptionTreeWriter& variable(const char* key) const { return set("sysvar", 1).set("Key", key); }
    IParam* get() const { return section.get(); }

private:
    Ref<IParam> section;
};
