// Stores of two processes on one file: what is kept of both, and what is told of the rest.
#include "tests/standin/file_store_fixture.h"
#include "tests/support/poll.h"

#include <QLockFile>

namespace {

struct FileStoreSharing : FileStoreTest {};

TEST_F(FileStoreSharing, AFileThatAnotherProcessIsWritingIsToldAndTriedAgain) {
    QDir().mkpath(path("root"));
    const auto process = start();
    QLockFile other(files.user + QStringLiteral(".lock"));
    ASSERT_TRUE(other.lock());
    process->set("A", 5);
    EXPECT_FALSE(process->store.flush());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("another program is writing it")));
    other.unlock();
    EXPECT_TRUE(process->store.flush());
    EXPECT_EQ(start()->value("A"), 5);
}

TEST_F(FileStoreSharing, TwoProcessesOnOneRootKeepEachOthersChanges) {
    const auto first = start(), second = start();
    first->set("A", 10);
    first->setIn("Cursor", "Size", 3);
    ASSERT_TRUE(first->store.flush());
    second->set("B", 20);
    second->setIn("Grid", "Step", 4);
    ASSERT_TRUE(second->store.flush());
    const auto third = start();
    EXPECT_EQ(third->value("A"), 10);
    EXPECT_EQ(third->value("B"), 20);
    EXPECT_TRUE(openChild(third->tree.get(), "Cursor"));
    EXPECT_TRUE(openChild(third->tree.get(), "Grid"));
    EXPECT_EQ(second->value("A"), 10) << "the writer sees the other's change too";
    EXPECT_EQ(problems, QStringList());
}

// A dialog reads all values when it opens and writes all of them when it is left.
TEST_F(FileStoreSharing, WhatOthersWroteWaitsForTheEndOfADialogThatWritesWhatItHasRead) {
    bool isCalm = false;
    int taken = 0;
    standin::StoreIo sharing = io();
    sharing.isCalm = [&] { return isCalm; };
    sharing.takenIn = [&] { ++taken; };
    const auto other = start();
    Process own(files, sharing);
    other->set("A", 10);
    other->setIn("Cursor", "Size", 3);
    ASSERT_TRUE(other->store.flush());
    own.set("B", 20); // Apply
    ASSERT_TRUE(own.store.flush());
    EXPECT_EQ(start()->value("A"), 10);
    EXPECT_EQ(start()->value("B"), 20);
    EXPECT_EQ(own.value("A"), 1) << "the open dialog has a value that it did not read";
    own.set("A", 1); // OK, with all that was read
    own.set("B", 30);
    ASSERT_TRUE(own.store.flush());
    EXPECT_EQ(start()->value("A"), 10) << "a value that was not changed here stands over the other's";
    EXPECT_EQ(start()->value("B"), 30);
    EXPECT_EQ(taken, 0);
    isCalm = true;
    EXPECT_TRUE(waitUntil([&] { return own.value("A") == 10; }));
    EXPECT_TRUE(openChild(own.tree.get(), "Cursor"));
    EXPECT_EQ(taken, 1) << "nobody hears of the values that came in";
    EXPECT_EQ(problems, QStringList());
    EXPECT_EQ(filesInRoot(), QStringList{QStringLiteral("user.yaml")});
    own.set("A", 11);
    ASSERT_TRUE(own.store.flush());
    EXPECT_EQ(start()->value("A"), 11) << "and may be changed then";
    EXPECT_EQ(problems, QStringList());
}

TEST_F(FileStoreSharing, OfAValueThatBothChangedTheLastWriterStands) {
    const auto first = start(), second = start();
    first->set("A", 10);
    ASSERT_TRUE(first->store.flush());
    second->set("A", 20);
    ASSERT_TRUE(second->store.flush());
    EXPECT_EQ(start()->value("A"), 20);
}

TEST_F(FileStoreSharing, OfAValueThatBothChangedTheReplacedOneIsToldAndTheOthersFileIsKept) {
    const auto first = start(), second = start();
    first->setIn("Cursor", "Size", 10);
    ASSERT_TRUE(first->store.flush());
    second->setIn("Cursor", "Size", 20);
    ASSERT_TRUE(second->store.flush());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_EQ(problems[0], QStringLiteral("Another program has changed %1 too. Its version is kept as "
                                          "%1.other-1.\n"
                                          "You have changed the same; yours now stand in place of these:\n"
                                          "Cursor/Size: 10")
                               .arg(files.user));
    EXPECT_TRUE(readText(path("root/user.yaml.other-1")).contains("Size: 10"));
    second->set("B", 5);
    ASSERT_TRUE(second->store.flush());
    EXPECT_EQ(problems.size(), 1) << "told once";
}

TEST_F(FileStoreSharing, AValueThatBothChangedToTheSameIsNotTold) {
    const auto first = start(), second = start();
    first->set("A", 10);
    ASSERT_TRUE(first->store.flush());
    second->set("A", 10);
    second->set("B", 20);
    ASSERT_TRUE(second->store.flush());
    EXPECT_EQ(problems, QStringList());
    EXPECT_EQ(filesInRoot(), QStringList{QStringLiteral("user.yaml")});
}

TEST_F(FileStoreSharing, ARemovalThatOurChangeReplacesIsTold) {
    const auto first = start(), second = start();
    first->tree->removeValue("A");
    ASSERT_TRUE(first->store.flush());
    second->set("A", 20);
    ASSERT_TRUE(second->store.flush());
    EXPECT_EQ(start()->value("A"), 20);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].endsWith(QStringLiteral("\nA (removed)"))) << problems[0].toStdString();
}

TEST_F(FileStoreSharing, OfALongTextTheBeginningIsToldWithoutTheTagOfItsType) {
    const auto first = start(), second = start();
    CKWVariant value;
    value = CXStringW(std::wstring(500, L'x').c_str());
    first->tree->setValue("A", &value);
    ASSERT_TRUE(first->store.flush());
    second->set("A", 20);
    ASSERT_TRUE(second->store.flush());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].endsWith(QStringLiteral("\nA: \"") + QString(79, 'x') + "..."))
        << problems[0].toStdString();
}

TEST_F(FileStoreSharing, OfManyValuesThatBothChangedTheFirstAreToldAndTheOthersCounted) {
    const auto first = start(), second = start();
    for (int i = 0; i < 25; ++i) {
        first->setIn("S", std::to_string(i).c_str(), 1);
        second->setIn("S", std::to_string(i).c_str(), 2);
    }
    ASSERT_TRUE(first->store.flush());
    ASSERT_TRUE(second->store.flush());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].endsWith(QStringLiteral("\nS/9: 1\n... and 15 more")))
        << problems[0].toStdString();
}

TEST_F(FileStoreSharing, OfTenValuesThatBothChangedAllAreTold) {
    for (const int count : {10, 11}) {
        const std::string section = "S" + std::to_string(count);
        const auto first = start(), second = start();
        for (int i = 0; i < count; ++i) {
            first->setIn(section.c_str(), std::to_string(i).c_str(), 1);
            second->setIn(section.c_str(), std::to_string(i).c_str(), 2);
        }
        ASSERT_TRUE(first->store.flush());
        problems.clear();
        ASSERT_TRUE(second->store.flush());
        ASSERT_EQ(problems.size(), 1);
        const QString end = QString::fromStdString("\n" + section + "/9: 1") +
                            (count == 10 ? QString() : QStringLiteral("\n... and 1 more"));
        EXPECT_TRUE(problems[0].endsWith(end)) << problems[0].toStdString();
    }
}

TEST_F(FileStoreSharing, WhatProgramsRememberByThemselvesGivesWayUntold) {
    files.remembered = {"Window", "Place/Main"};
    const auto first = start(), second = start();
    for (Process* process : {first.get(), second.get()}) {
        const int value = process == first.get() ? 1 : 2;
        process->setIn("Window", "Left", value);
        process->setIn("Window/Tool", "Left", value);
        process->setIn("Place", "Main", value);
    }
    ASSERT_TRUE(first->store.flush());
    ASSERT_TRUE(second->store.flush());
    EXPECT_EQ(problems, QStringList());
    EXPECT_EQ(filesInRoot(), QStringList{QStringLiteral("user.yaml")});
    first->setIn("Windows", "Left", 3);
    second->setIn("Windows", "Left", 4);
    ASSERT_TRUE(first->store.flush());
    ASSERT_TRUE(second->store.flush());
    ASSERT_EQ(problems.size(), 1) << "a name that only begins alike is another one";
    EXPECT_TRUE(problems[0].endsWith(QStringLiteral("\nWindows/Left: 3"))) << problems[0].toStdString();
}

TEST_F(FileStoreSharing, WhatOneProcessRemovedTheOtherDoesNotBringBack) {
    writeUser("A: 1\nB: 2\nS: {x: 1}\nT: {y: 1}\n");
    const auto first = start(), second = start();
    first->tree->removeValue("A");
    first->tree->removeEntry("S");
    ASSERT_TRUE(first->store.flush());
    second->set("C", 3);
    ASSERT_TRUE(second->store.flush());
    const auto third = start();
    EXPECT_EQ(third->value("A"), -1);
    EXPECT_EQ(childNames(third->tree.get()), std::vector<std::string>{"T"});
    EXPECT_EQ(third->value("C"), 3);
}

TEST_F(FileStoreSharing, AListThatBothChangedIsNotMixedAndTheOthersVersionIsKept) {
    files.wholeDepth = 0;
    const auto first = start(), second = start();
    first->set("A", 10);
    ASSERT_TRUE(first->store.flush());
    second->set("B", 20);
    ASSERT_TRUE(second->store.flush());
    const auto third = start();
    EXPECT_EQ(third->value("A"), 1);
    EXPECT_EQ(third->value("B"), 20);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].endsWith(QStringLiteral("user.yaml.other-1."))) << problems[0].toStdString();
    EXPECT_TRUE(readText(path("root/user.yaml.other-1")).contains("A: 10"));
}

TEST_F(FileStoreSharing, SectionsAtTheWholeDepthAreTakenAsWholes) {
    writeUser("L:\n  X: {1: 1, 2: 2}\n  Y: {1: 1}\n");
    files.wholeDepth = 2;
    const auto first = start(), second = start();
    first->setIn("L/X", "1", 7);
    ASSERT_TRUE(first->store.flush());
    second->setIn("L/Y", "1", 8);
    ASSERT_TRUE(second->store.flush());
    EXPECT_EQ(problems, QStringList());
    second->setIn("L/X", "2", 9);
    first->setIn("L/X", "3", 6);
    ASSERT_TRUE(first->store.flush());
    ASSERT_TRUE(second->store.flush());
    int third = -1;
    const auto after = start();
    readValue(openChild(after->tree.get(), "L/X").get(), "3", &third);
    EXPECT_EQ(third, -1) << "both changed X: the last writer's stands alone";
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].endsWith(QStringLiteral("\nL/X (all of it)"))) << problems[0].toStdString();
}

} // namespace
