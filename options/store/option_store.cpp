// The rule by which an option finds its store from its own node and its parent's.
#include "options/store/option_store.h"

#include "host/typed_reads.h"

namespace {

// The value of the node if it is 8-bit text, else the empty text.
CXString textOf(IParam* node, const char* name) {
    CXString text;
    readValue(node, name, &text);
    return text;
}

int isSet(const CXString& text) { return text.isEmpty() ? 0 : 1; }

int storeWithoutNode(IParam* parent, CXString& section, CXString& store) {
    if (!parent)
        return 1;
    section = textOf(parent, "Section");
    if (section.isEmpty())
        return 0;
    store = textOf(parent, "IFace");
    return isSet(store);
}

int storeOfOwnSection(IParam* node, IParam* parent, CXString& store) {
    store = textOf(node, "IFace");
    if (!store.isEmpty() || !parent)
        return 1;
    store = textOf(parent, "IFace");
    return isSet(store);
}

int storeOfParentSection(IParam* node, IParam* parent, CXString& section, CXString& store) {
    section = textOf(parent, "Section");
    if (section.isEmpty())
        return 0;
    store = textOf(node, "IFace");
    if (!store.isEmpty())
        return 1;
    store = textOf(parent, "IFace");
    return isSet(store);
}

} // namespace

int findStore(IParam* node, IParam* parent, CXString& key, CXString& section, CXString& store) {
    section = "";
    store = "";
    key = textOf(node, "Key");
    if (key.isEmpty() && parent) {
        key = textOf(parent, "Key");
        if (key.isEmpty())
            return 0;
    }
    if (!node)
        return storeWithoutNode(parent, section, store);

    int isSystemVariable = 0;
    if (readValue(node, "sysvar", &isSystemVariable) && isSystemVariable) {
        store = kStoreSysVar;
        return 1;
    }
    section = textOf(node, "Section");
    if (!section.isEmpty())
        return storeOfOwnSection(node, parent, store);
    if (!parent) {
        store = textOf(node, "IFace");
        return 1;
    }
    return storeOfParentSection(node, parent, section, store);
}
