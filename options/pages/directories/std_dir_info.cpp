// The only place where directories of a list are made.
#include "options/pages/directories/std_dir_info.h"

#include "host/ref.h"

IStdDirInfo* new_StdDirInfo(const char* key, const wchar_t* path, int editable) {
    return Ref<IStdDirInfo>::share(new CStdDirInfo(key, path, editable)).detach();
}
