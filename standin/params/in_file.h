// The root of a tree together with the file that keeps it.
#pragma once

#include "standin/params/file_store.h"
#include "standin/params/mem_param.h"

namespace standin {

// Node is a ParamOf. The file is flushed when the root goes.
template <class Node> class InFile : public Node {
public:
    InFile(StoreFiles files, StoreIo io, const TreeRulesPtr& rules = std::make_shared<TreeRules>())
        : Node(rules), store(this->section(), rules, std::move(files), std::move(io)) {}
    bool flush() { return store.flush(); }

private:
    FileStore store;
};

} // namespace standin
