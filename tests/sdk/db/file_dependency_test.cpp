// The list of files that a drawing depends on.
#include "sdk/db/file_dependency.h"

#include <gtest/gtest.h>

namespace {

OdFileDependencyInfo entry(const wchar_t* fullName, const wchar_t* found = L"") {
    OdFileDependencyInfo info;
    info.feature = L"Acad:XRef";
    info.fullFileName = fullName;
    info.foundPath = found;
    return info;
}

} // namespace

TEST(FileDependencies, EntriesAreFoundByFeatureAndFullName) {
    OdFileDependencyManager manager;
    EXPECT_EQ(manager.createEntry(entry(L"a.dxf")), 1u);
    EXPECT_EQ(manager.createEntry(entry(L"b.dxf", L"/b/")), 2u);
    OdFileDependencyInfo info;
    EXPECT_EQ(manager.getEntry(L"Acad:XRef", L"b.dxf", info), 2u);
    EXPECT_EQ(info.foundPath, OdString(L"/b/"));
    EXPECT_EQ(manager.getEntry(L"Acad:Font", L"b.dxf", info), 0u);
    EXPECT_EQ(manager.getEntry(L"Acad:XRef", L"B.dxf", info), 0u);
}

TEST(FileDependencies, SecondEntryOfAFileReplacesTheFirst) {
    OdFileDependencyManager manager;
    manager.createEntry(entry(L"a.dxf"));
    EXPECT_EQ(manager.createEntry(entry(L"a.dxf", L"/a/")), 1u);
    OdFileDependencyInfo info;
    manager.getEntry(L"Acad:XRef", L"a.dxf", info);
    EXPECT_EQ(info.foundPath, OdString(L"/a/"));
    EXPECT_EQ(manager.countEntries(), 1u);
}

TEST(FileDependencies, EntriesBehindAnErasedOneMoveUp) {
    OdFileDependencyManager manager;
    for (const wchar_t* name : {L"c.dxf", L"a.dxf", L"b.dxf"})
        manager.createEntry(entry(name, name));
    manager.eraseEntry(L"Acad:XRef", L"c.dxf");
    manager.eraseEntry(L"Acad:XRef", L"c.dxf");
    OdFileDependencyInfo info;
    EXPECT_EQ(manager.getEntry(L"Acad:XRef", L"c.dxf", info), 0u);
    EXPECT_EQ(manager.getEntry(L"Acad:XRef", L"b.dxf", info), 2u);
    EXPECT_EQ(info.foundPath, OdString(L"b.dxf"));
    EXPECT_EQ(manager.createEntry(entry(L"d.dxf")), 3u);
}
