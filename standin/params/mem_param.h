// Parameter trees in memory: one lasting node object for each section.
#pragma once

#include "standin/params/section.h"

namespace standin {

// The node type of every tree. The roots of the application's stores are ParamOf<IProfile> and so on, the
// sections below any root are MemParam. The count starts at 0.
template <class I> class ParamOf : public CKWUnknownImpl<I>, public SectionOwner {
public:
    explicit ParamOf(TreeRulesPtr rules = {}, std::string path = {})
        : data(std::move(rules), std::move(path)) {}

    IParam* createChild(const char* name) override { return data.createChild(name).detach(); }
    IParam* openSection(const char* name, int create) override {
        return data.openSection(name, create != 0).detach();
    }
    void removeEntry(const char* name) override { data.removeEntry(name); }
    void clear() override { data.clear(); }
    IParamEnum* newEnum() override { return data.newEnum().detach(); }
    int getValue(const char* name, tagKWVARIANT* out) override { return data.getValue(name, out); }
    int setValue(const char* name, const tagKWVARIANT* in) override { return data.setValue(name, in); }
    void removeValue(const char* name) override { data.removeValue(name); }
    Section& section() override { return data; }

protected:
    int internalQueryInterface(const std::type_info& type, void** out) override {
        return this->template answer<IParam>(type, out) ||
               CKWUnknownImpl<I>::internalQueryInterface(type, out);
    }

private:
    Section data;
};

// A new tree whose root answers to I.
template <class I> Ref<ParamOf<I>> newTree(TreeRulesPtr rules = {}) {
    return Ref<ParamOf<I>>::share(new ParamOf<I>(std::move(rules)));
}

} // namespace standin
