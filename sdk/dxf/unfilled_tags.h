// Objects of a file are made by their classes like new ones, but get their tags from the file: those that
// their constructors would put in first are left out.
#pragma once

// While one lives, nothing is inserted into the lists of tags of its thread. They do not nest.
class DxfUnfilledTags {
public:
    DxfUnfilledTags();
    ~DxfUnfilledTags();
    DxfUnfilledTags(const DxfUnfilledTags&) = delete;
    DxfUnfilledTags& operator=(const DxfUnfilledTags&) = delete;
};
