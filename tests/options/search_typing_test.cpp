// Searching while the user types, in a host that wants it. What the box does without such a host is in
// search_in_dialog_test.cpp.
#include "options/pages/search/searching_line_edit.h"
#include "tests/options/options_fixture.h"
#include "tests/support/test_habits.h"

#include <QLabel>

namespace {

class SearchTyping : public OptionsFixture {
protected:
    void SetUp() override {
        const OptionTreeWriter display = node("Display");
        display.set("Name", L"Colours and lines").node("Grid").set("Description", L"Lines of the grid");
        const OptionTreeWriter picking = node("Picking");
        picking.node("Groups").variable("PICKSTYLE").type(L"EditInt");
        picking.node("Scale").set("SearchWords", L"LTSCALE linetype");
        open();
        dialog->show();
        EXPECT_TRUE(waitUntil([this] { return dialog->isActiveWindow(); }));
    }
    void type(const char* text) {
        dialog->searchEdit->setFocus();
        EXPECT_TRUE(waitUntil([this] { return dialog->searchEdit->cursorPosition() == 0; }));
        QTest::keyClicks(dialog->searchEdit, text);
    }
    // Whether the search comes to show this node and not the other, without Return.
    bool finds(const char* nodeName, const char* hiddenNode) {
        return waitUntil([&] { return item(hiddenNode)->isHidden() && !item(nodeName)->isHidden(); });
    }
    void clear() {
        QTest::keyClick(dialog->searchEdit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(dialog->searchEdit, Qt::Key_Delete);
    }

    TestHabits habits{{DialogHabit::FocusStaysInOptions, DialogHabit::SearchWhileTyping}};
};

TEST_F(SearchTyping, ResultsComeAfterAPauseAndGoWithTheText) {
    item("Picking")->setExpanded(false);
    type("gro");
    EXPECT_TRUE(finds("Groups", "Display"));
    EXPECT_TRUE(item("Picking")->isExpanded());
    EXPECT_TRUE(dialog->searchEdit->hasFocus()) << "the user is still typing";
    QTest::keyClicks(dialog->searchEdit, "ups");
    EXPECT_TRUE(waitUntil([this] { return labelOf("Groups").contains(">Groups<"); }));
    clear();
    EXPECT_FALSE(item("Display")->isHidden());
    EXPECT_FALSE(item("Picking")->isExpanded()) << "the tree is not as it was before the first letter";
}

TEST_F(SearchTyping, WildcardsAreTakenAsTyped) {
    for (const char* typed : {"*lour*", "*olours", "c*s", "col?urs"}) {
        type(typed);
        EXPECT_EQ(dialog->searchEdit->text(), typed);
        EXPECT_TRUE(finds("Display", "Picking")) << typed;
        clear();
        dialog->okButton->setFocus();
    }
    type("colo");
    EXPECT_EQ(dialog->searchEdit->text(), "colo*") << "a plain word is still the beginning of one";
}

TEST_F(SearchTyping, ABranchThatMatchesOpens) {
    item("Display")->setExpanded(false);
    type("colours");
    ASSERT_TRUE(finds("Display", "Picking"));
    EXPECT_TRUE(item("Display")->isExpanded());
    EXPECT_FALSE(item("Grid")->isHidden());
}

TEST_F(SearchTyping, NamesOfVariablesAndSearchWordsAreFoundAndTheirRowsMarked) {
    type("pickstyle");
    EXPECT_TRUE(finds("Groups", "Display"));
    EXPECT_TRUE(labelOf("Groups").contains("background-color"));
    clear();
    dialog->okButton->setFocus();
    type("ltscale");
    EXPECT_TRUE(finds("Scale", "Display"));
    EXPECT_TRUE(labelOf("Scale").contains("background-color"));
}

TEST_F(SearchTyping, DownGoesToWhatWasFound) {
    type("grid");
    ASSERT_TRUE(finds("Grid", "Picking"));
    QTest::keyClick(dialog->searchEdit, Qt::Key_Down);
    EXPECT_TRUE(dialog->tree->hasFocus());
    QTest::keyClick(dialog->tree, Qt::Key_Down);
    EXPECT_EQ(dialog->tree->currentItem(), item("Display"));
}

TEST(SearchTypingWithoutTheHabit, NothingIsFoundUntilReturnNorByAVariable) {
    struct Plain : OptionsFixture {
        void TestBody() override {}
        void run() {
            node("Groups").variable("PICKSTYLE").type(L"EditInt").set("SearchWords", L"style");
            show();
            EXPECT_EQ(item("Groups")->searchWords, "");
            dialog->searchEdit->setFocus();
            QTest::keyClicks(dialog->searchEdit, "nothing");
            QCoreApplication::processEvents();
            EXPECT_FALSE(item("Groups")->isHidden());
            QTest::keyClick(dialog->searchEdit, Qt::Key_Return);
            EXPECT_TRUE(item("Groups")->isHidden());
        }
    };
    Plain().run();
}

} // namespace
