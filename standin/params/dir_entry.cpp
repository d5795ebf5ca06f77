// The elements of the host's directory lists.
#include "standin/params/dir_entry.h"

namespace standin {

namespace {

class DirEntry : public CKWUnknownImpl<IStdDirInfo> {
public:
    DirEntry(const char* entryKey, const wchar_t* entryPath, int mayEdit)
        : key(entryKey), path(entryPath), editable(mayEdit) {}
    const char* GetKey() override { return key.c_str(); }
    const wchar_t* GetPath() override { return path.c_str(); }
    int GetEditable() override { return editable; }
    void SetPath(const wchar_t* newPath) override { path = newPath; }

private:
    CXString key;
    CXStringW path;
    int editable;
};

} // namespace

Ref<IStdDirInfo> newDirEntry(const char* key, const wchar_t* path, int editable) {
    return Ref<IStdDirInfo>::share(new DirEntry(key, path, editable));
}

Ref<StdDirList> copyOfList(const Ref<StdDirList>& list) {
    if (!list)
        return nullptr;
    const auto copy = Ref<StdDirList>::share(new StdDirList);
    for (const auto& element : elementsOf(list))
        copy->append(newDirEntry(element->GetKey(), element->GetPath(), element->GetEditable()).get());
    return copy;
}

} // namespace standin
