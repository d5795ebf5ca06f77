// The Options dialog with the page of standard directories, over lists of the test's own.
#pragma once

#include "host/text.h"
#include "options/pages/directories/std_dir_list.h"
#include "tests/options/pages/page_fixture.h"

#include <QTemporaryDir>

class StdDirsFixture : public PageFixture {
protected:
    StdDirsFixture() : PageFixture(kIdStdDirs) {}

    Ref<IParam> describe(const char* key, const wchar_t* name) {
        const Ref<IParam> section = sectionOf(*sectionOf(host.plain(), "StdDirsDescriptions"), key);
        setValue(section, "Name", name);
        setValue(section, "Description", (std::wstring(L"About ") + name).c_str());
        return section;
    }
    void addSection(const char* key, const wchar_t* name, const std::vector<std::wstring>& paths) {
        describe(key, name);
        host.stdDirs().set(key, paths);
    }
    TreeItem* section(int index = 0) const { return page()->childItem(index); }
    QStringList rows(int index = 0) const { return rowsBelow(section(index)); }
    // The paths of a section's list as the dialog holds it, in the list's order.
    QStringList held(std::size_t index = 0) const {
        QStringList paths;
        for (const Ref<IStdDirInfo>& info : elementsOf(preferences->stdDirs[index].list))
            paths << hostqt::qString(info->GetPath());
        return paths;
    }
    QStringList stored(const char* key) {
        QStringList paths;
        for (const std::wstring& path : host.stdDirs().paths(key))
            paths << QString::fromStdWString(path);
        return paths;
    }
    // Answers the next path dialog with a path that need not exist.
    void whenAskedEnter(const QString& path) {
        host.answer(EV_MB_YES);
        whenDialogOpens([path](QDialog& dialog) {
            typeInto(dialog, "lineEdit", path);
            clickOn(dialog, "okButton");
        });
    }
    void add(const QString& path) {
        whenAskedEnter(path);
        click(preferences->addButton);
    }
    void modify(TreeItem* item, const QString& path) {
        whenAskedEnter(path);
        EXPECT_TRUE(chooseInMenu(item, "Modify"));
    }
    void apply() { click(preferences->applyButton); }
};
