// Profiles of the user over a real file: what changes with the current one, what stays, and what is refused.
#include "standin/params/profiles.h"

#include "host/text.h"
#include "host/typed_reads.h"

#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct ProfilesTest : testing::Test {
    ProfilesTest() { start(); }
    ~ProfilesTest() override { standin::setProfileDefaults({}); }
    // As after the end of the program.
    void start() {
        profiles = nullptr;
        store = nullptr;
        standin::setProfileDefaults({});
        store = standin::openProfile(root.path());
        profiles = Ref<standin::Profiles>::share(
            new standin::Profiles(store, {"Windows", "Workbench/RecentDrawings"}));
    }
    void set(const char* section, const char* key, int value) {
        writeValue(openChild(store.get(), section, 1).get(), key, value);
    }
    int get(const char* section, const char* key) {
        int value = -1;
        readValue(openChild(store.get(), section).get(), key, &value);
        return value;
    }
    QStringList names() {
        QStringList names;
        for (const OdString& name : profiles->names())
            names << hostqt::qString(name);
        return names;
    }
    QString current() { return hostqt::qString(profiles->current()); }

    QTemporaryDir root;
    Ref<standin::FileProfile> store;
    Ref<standin::Profiles> profiles;
};

QString text(const OdString& refusal) { return hostqt::qString(refusal); }

TEST_F(ProfilesTest, EachKeepsWhatWasSetWhileItWasCurrentAlsoInTheNextRun) {
    EXPECT_EQ(names(), QStringList{"default"});
    set("Grid", "Size", 5);
    EXPECT_EQ(text(profiles->create(L" Plans ")), "");
    EXPECT_EQ(text(profiles->select(L"Plans")), "");
    EXPECT_EQ(current(), "Plans");
    EXPECT_EQ(get("Grid", "Size"), -1) << "a new one has the defaults";
    set("Grid", "Size", 6);
    set("Grid", "Other", 1);
    start();
    EXPECT_EQ(current(), "Plans");
    EXPECT_EQ(get("Grid", "Size"), 6);
    EXPECT_EQ(text(profiles->select(L"default")), "");
    EXPECT_EQ(get("Grid", "Size"), 5);
    EXPECT_EQ(get("Grid", "Other"), -1);
    start();
    EXPECT_EQ(text(profiles->select(L"Plans")), "");
    EXPECT_EQ(get("Grid", "Size"), 6);
    EXPECT_EQ(get("Grid", "Other"), 1);
}

TEST_F(ProfilesTest, WhoHoldsASectionSeesTheOtherProfileInIt) {
    set("SysVars", "PICKSTYLE", 1);
    const Ref<IParam> held = openChild(store.get(), "SysVars");
    profiles->copyCurrent(L"Other");
    profiles->select(L"Other");
    writeValue(held.get(), "PICKSTYLE", 0);
    EXPECT_EQ(get("SysVars", "PICKSTYLE"), 0);
    profiles->select(L"default");
    int value = -1;
    readValue(held.get(), "PICKSTYLE", &value);
    EXPECT_EQ(value, 1);
}

TEST_F(ProfilesTest, PlacesOfWindowsAndTheLikeBelongToAll) {
    set("Windows/Main", "Width", 800);
    set("Workbench", "RecentDrawings", 3);
    set("Workbench", "Theme", 2);
    profiles->create(L"Plans");
    profiles->select(L"Plans");
    EXPECT_EQ(get("Windows/Main", "Width"), 800);
    EXPECT_EQ(get("Workbench", "RecentDrawings"), 3);
    EXPECT_EQ(get("Workbench", "Theme"), -1);
    set("Windows/Main", "Width", 900);
    set("Workbench", "RecentDrawings", 4);
    profiles->select(L"default");
    EXPECT_EQ(get("Windows/Main", "Width"), 900) << "the place of then has come back";
    EXPECT_EQ(get("Workbench", "RecentDrawings"), 4) << "that of then has come back";
    EXPECT_EQ(get("Workbench", "Theme"), 2);
}

TEST_F(ProfilesTest, TheyAreCopiedRenamedAndRemoved) {
    set("Grid", "Size", 5);
    EXPECT_EQ(text(profiles->copyCurrent(L"Copy")), "");
    EXPECT_EQ(current(), "default");
    EXPECT_EQ(text(profiles->renameCurrent(L"Mine")), "");
    EXPECT_EQ(current(), "Mine");
    EXPECT_EQ(get("Grid", "Size"), 5);
    set("Grid", "Size", 6);
    EXPECT_EQ(text(profiles->select(L"Copy")), "");
    EXPECT_EQ(get("Grid", "Size"), 5);
    EXPECT_EQ(names(), (QStringList{"Copy", "Mine"}));
    EXPECT_EQ(text(profiles->remove(L"Mine")), "");
    EXPECT_EQ(names(), QStringList{"Copy"});
}

TEST_F(ProfilesTest, WhatCannotBeIsRefusedWithItsReasonAndChangesNothing) {
    EXPECT_EQ(text(profiles->create(L"  ")), "The name of a profile has 1 to 64 characters.");
    EXPECT_EQ(text(profiles->create(std::wstring(65, L'x').c_str())),
              "The name of a profile has 1 to 64 characters.");
    EXPECT_EQ(text(profiles->copyCurrent(L"a/b")), "The name of a profile holds neither / nor \\.");
    EXPECT_EQ(text(profiles->renameCurrent(L"a\\b")), "The name of a profile holds neither / nor \\.");
    EXPECT_EQ(text(profiles->create(L"DEFAULT")), "There is a profile \"default\" already.");
    EXPECT_EQ(text(profiles->select(L"Gone")), "There is no profile \"Gone\".");
    EXPECT_EQ(text(profiles->remove(L"Gone")), "There is no profile \"Gone\".");
    EXPECT_EQ(text(profiles->remove(L"default")),
              "\"default\" is the current profile: choose another one first.");
    EXPECT_EQ(names(), QStringList{"default"});
    EXPECT_EQ(current(), "default");
}

} // namespace
