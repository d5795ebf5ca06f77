// The dialogs that order, highlight and list members.
#include "groups/group_member_dlg.h"
#include "groups/group_reorder_dlg.h"
#include "groups/obj_highlight_dlg.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/group_fixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>
#include <array>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class ReorderDialog : public GroupTest {
protected:
    ReorderDialog() {
        addGroup(L"FIVE", pick({0, 1, 2, 3, 4}), L"A row of five");
        addGroup(L"ONE", pick({5}));
        addGroup(L"EMPTY", {});
        data.name = L"five";
        show();
    }
    void show() { dialog = std::make_unique<CGroupReorderDlg>(&window, dictionary()->objectId(), data); }
    QString text(const char* label) const { return in<QLabel>(*dialog, label).text(); }
    QString message() const { return text("messageLabel"); }
    bool isEnabled(const char* name) const { return in<QWidget>(*dialog, name).isEnabled(); }
    void choose(int row) { in<QTableWidget>(*dialog, "groupTable").setCurrentCell(row, 0); }
    void reorder(const QString& from, const QString& to, const QString& count) {
        in<QLineEdit>(*dialog, "removeFromEdit").setText(from);
        in<QLineEdit>(*dialog, "newPositionEdit").setText(to);
        in<QLineEdit>(*dialog, "countEdit").setText(count);
        DialogUser::clickIn(*dialog, "reorderButton");
    }
    GroupData data;
    std::unique_ptr<CGroupReorderDlg> dialog;
};

TEST_F(ReorderDialog, ShowsTheGroupOfTheRecordWithItsRanges) {
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Order Group"));
    EXPECT_EQ(dialog->minimumSize(), QSize(380, 365));
    EXPECT_EQ(data.currentRow, 0);
    EXPECT_EQ(text("descriptionLabel"), QStringLiteral("A row of five"));
    EXPECT_EQ(text("removeFromLabel"), QStringLiteral("Remove from position (0 - 4):"));
    EXPECT_EQ(text("newPositionLabel"), QStringLiteral("Enter new position number for the object (0 - 4):"));
    EXPECT_EQ(text("countLabel"), QStringLiteral("Number of objects (less than 5):"));
    EXPECT_EQ(in<QLineEdit>(*dialog, "countEdit").minimumWidth(), 80);
    EXPECT_EQ(in<QTableWidget>(*dialog, "groupTable").item(0, 0)->data(Qt::UserRole).userType(),
              int(QMetaType::ULongLong));
}

TEST_F(ReorderDialog, GroupOfTheRecordIsFoundInAnyCase) {
    data.name = L"one";
    data.currentRow = -1;
    show();
    EXPECT_EQ(data.currentRow, 1);
    EXPECT_EQ(data.group->name(), OdString(L"ONE"));
}

TEST_F(ReorderDialog, WithoutAKnownNameTheFirstRowIsTaken) {
    data = GroupData();
    show();
    EXPECT_EQ(data.currentRow, 0);
    EXPECT_TRUE(in<QTableWidget>(*dialog, "groupTable").selectionModel()->isRowSelected(0, {}));
    EXPECT_EQ(data.name, OdString(L"FIVE"));
}

TEST_F(ReorderDialog, GroupOfOneMemberHasOnlyHighlight) {
    choose(1);
    EXPECT_EQ(text("removeFromLabel"), QStringLiteral("Remove from position (0 - 0):"));
    EXPECT_EQ(text("newPositionLabel"), QStringLiteral("Enter new position number for the object (0 - 0):"));
    for (const char* name : {"removeFromEdit", "newPositionEdit", "countEdit", "removeFromLabel",
                             "newPositionLabel", "countLabel", "reorderButton", "reverseButton"})
        EXPECT_FALSE(isEnabled(name)) << name;
    EXPECT_TRUE(isEnabled("highlightButton"));
    EXPECT_EQ(text("descriptionLabel"), QStringLiteral("None"));
}

TEST_F(ReorderDialog, EmptyGroupHasNoHighlightEither) {
    choose(2);
    EXPECT_FALSE(isEnabled("highlightButton"));
    choose(0);
    EXPECT_TRUE(isEnabled("highlightButton"));
    EXPECT_TRUE(isEnabled("reorderButton"));
}

TEST_F(ReorderDialog, ChoosingAGroupCopiesItsNameIntoNameAndDescription) {
    choose(1);
    EXPECT_EQ(data.name, OdString(L"ONE"));
    EXPECT_EQ(data.description, OdString(L"ONE"));
    EXPECT_EQ(data.currentRow, 1);
    EXPECT_EQ(data.group->name(), OdString(L"ONE"));
}

TEST_F(ReorderDialog, EmptyCountMovesOneObjectAndTheEditsKeepTheirText) {
    reorder("3", "1", "");
    EXPECT_EQ(message(), QStringLiteral("Group has been re-ordered."));
    EXPECT_THAT(members(L"FIVE"), ElementsAre(0, 3, 1, 2, 4));
    EXPECT_EQ(in<QLineEdit>(*dialog, "removeFromEdit").text(), QStringLiteral("3"));
}

TEST_F(ReorderDialog, CountUpToTheRoomBehindTheLargerPositionPasses) {
    reorder("3", "1", " 2 ");
    EXPECT_THAT(members(L"FIVE"), ElementsAre(0, 3, 4, 1, 2));
    reorder("3", "1", "3");
    EXPECT_EQ(message(), QStringLiteral("Cannot move that number of objects."));
    EXPECT_THAT(members(L"FIVE"), ElementsAre(0, 3, 4, 1, 2));
}

TEST_F(ReorderDialog, CountOfZeroAndTextAreRefused) {
    for (const char* count : {"0", "x", "-1", "1.5"}) {
        reorder("3", "1", count);
        EXPECT_EQ(message(), QStringLiteral("Cannot move that number of objects.")) << count;
        EXPECT_EQ(in<QLineEdit>(*dialog, "countEdit").selectedText(), QLatin1String(count));
    }
    EXPECT_THAT(members(L"FIVE"), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(ReorderDialog, WrongPositionsAreRefusedEachWithItsMessage) {
    for (const char* position : {"5", "", "first", "-1", "99999999999"}) {
        reorder(position, "1", "1");
        EXPECT_EQ(message(), QStringLiteral("Cannot remove from that position.")) << position;
        reorder("1", position, "1");
        EXPECT_EQ(message(), QStringLiteral("Cannot replace at that position.")) << position;
    }
    EXPECT_THAT(members(L"FIVE"), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(ReorderDialog, RowOfTheRecordIsInSightWhenItOpens) {
    for (int i = 0; i < 60; ++i)
        addGroup((L"G" + std::to_wstring(i + 10)).c_str(), pick({5}));
    data.name = L"G69";
    show();
    dialog->show();
    const auto& table = in<QTableWidget>(*dialog, "groupTable");
    const QRect row = table.visualItemRect(table.findItems("G69", Qt::MatchExactly).at(0));
    EXPECT_TRUE(table.viewport()->rect().contains(row));
}

TEST_F(ReorderDialog, RefusedFieldGetsTheFocus) {
    dialog->show();
    const std::array<const char*, 4> refused[] = {
        {"9", "0", "1", "removeFromEdit"}, {"0", "9", "1", "newPositionEdit"}, {"0", "1", "9", "countEdit"}};
    for (const auto& [from, to, count, edit] : refused) {
        reorder(from, to, count);
        EXPECT_EQ(dialog->focusWidget(), &in<QLineEdit>(*dialog, edit)) << edit;
        EXPECT_EQ(in<QLineEdit>(*dialog, edit).selectedText(), QStringLiteral("9")) << edit;
    }
}

TEST_F(ReorderDialog, ReverseTellsIt) {
    DialogUser::clickIn(*dialog, "reverseButton");
    EXPECT_THAT(members(L"FIVE"), ElementsAre(4, 3, 2, 1, 0));
    EXPECT_EQ(message(), QStringLiteral("Object's order has been reversed."));
    choose(1);
    EXPECT_EQ(message(), QString());
}

TEST_F(ReorderDialog, HelpOpensItsTopic) {
    DialogUser::clickIn(*dialog, "helpButton");
    EXPECT_EQ(host.helpTopics(), QStringList{"IDH_GroupCmd[1]"});
}

TEST_F(ReorderDialog, ButtonsEndWithTheirResults) {
    const std::pair<const char*, int> results[] = {
        {"okButton", 1}, {"cancelButton", 3}, {"highlightButton", 10}};
    for (const auto& [button, result] : results) {
        DialogUser::clickIn(*dialog, button);
        EXPECT_EQ(dialog->result(), result);
    }
}

TEST_F(ReorderDialog, HighlightButtonIsConnectedTwice) {
    const QSignalSpy finished(dialog.get(), &QDialog::finished);
    DialogUser::clickIn(*dialog, "highlightButton");
    EXPECT_EQ(finished.count(), 2);
}

TEST_F(ReorderDialog, AnonymousGroupsAreListedWhereTheyAreIncluded) {
    addUnnamed(pick({0}));
    show();
    EXPECT_EQ(in<QTableWidget>(*dialog, "groupTable").rowCount(), 3);
    data.includeUnnamed = true;
    show();
    EXPECT_EQ(in<QTableWidget>(*dialog, "groupTable").rowCount(), 4);
}

TEST_F(ReorderDialog, DescriptionWithMarkupShowsAsItStands) {
    group(L"ONE", OdDb::kForWrite)->setDescription(L"<b>One</b>");
    choose(1);
    EXPECT_EQ(in<QLabel>(*dialog, "descriptionLabel").textFormat(), Qt::PlainText);
    EXPECT_EQ(text("descriptionLabel"), QStringLiteral("<b>One</b>"));
}

TEST(PositionText, OnlyDigitsAreAPosition) {
    int value = -1;
    EXPECT_TRUE(parsePosition(QStringLiteral("  12 "), value));
    EXPECT_EQ(value, 12);
    for (const char* text : {"", "  ", "+1", "-1", "1 2", "0x1", "1e3", "99999999999"})
        EXPECT_FALSE(parsePosition(QLatin1String(text), value)) << text;
    EXPECT_FALSE(parsePosition(QString(QChar(0x00BD)), value)); // one half is a number, but no digit
}

class HighlightDialog : public GroupTest {
protected:
    HighlightDialog() {
        addGroup(L"TWO", pick({2, 4}));
        addGroup(L"EMPTY", {});
    }
    std::unique_ptr<CObjHighlightDlg> make(const wchar_t* name) {
        return std::make_unique<CObjHighlightDlg>(&window, group(name), &host.document);
    }
    static QString text(const QDialog& dialog, const char* label) { return in<QLabel>(dialog, label).text(); }
    static bool isEnabled(const QDialog& dialog, const char* name) {
        return in<QPushButton>(dialog, name).isEnabled();
    }
};

TEST_F(HighlightDialog, StartsByUnhighlightingTheFirstMemberAndCountsFromZero) {
    odrxCast<OdDbEntity>(lines[2].safeOpenObject())->highlight(true);
    const auto dialog = make(L"TWO");
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Object grouping"));
    EXPECT_EQ(dialog->minimumSize(), QSize(210, 110));
    EXPECT_THAT(highlightedLines(), IsEmpty());
    EXPECT_EQ(text(*dialog, "objectLabel"), QStringLiteral("Object: 0"));
    EXPECT_EQ(text(*dialog, "totalLabel"), QStringLiteral("Total: 2"));
    EXPECT_FALSE(isEnabled(*dialog, "prevButton"));
    EXPECT_TRUE(isEnabled(*dialog, "nextButton"));
}

TEST_F(HighlightDialog, WithTwoMembersOneStepReachesTheEnd) {
    const auto dialog = make(L"TWO");
    DialogUser::clickIn(*dialog, "nextButton");
    EXPECT_THAT(highlightedLines(), ElementsAre(4));
    EXPECT_EQ(text(*dialog, "objectLabel"), QStringLiteral("Object: 1"));
    EXPECT_FALSE(isEnabled(*dialog, "nextButton"));
    EXPECT_TRUE(isEnabled(*dialog, "prevButton"));
    DialogUser::clickIn(*dialog, "prevButton");
    EXPECT_THAT(highlightedLines(), ElementsAre(2));
    EXPECT_TRUE(isEnabled(*dialog, "nextButton"));
    EXPECT_FALSE(isEnabled(*dialog, "prevButton"));
}

TEST_F(HighlightDialog, ClosingTheWindowUnhighlightsAndCountsAsOk) {
    const auto dialog = make(L"TWO");
    dialog->show();
    DialogUser::clickIn(*dialog, "nextButton");
    dialog->close();
    EXPECT_THAT(highlightedLines(), IsEmpty());
    EXPECT_EQ(dialog->result(), 1);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(HighlightDialog, OkUnhighlightsAndEscapeDoesNot) {
    const auto dialog = make(L"TWO");
    DialogUser::clickIn(*dialog, "nextButton");
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_EQ(dialog->result(), 0);
    EXPECT_THAT(highlightedLines(), ElementsAre(4));
    DialogUser::clickIn(*dialog, "okButton");
    EXPECT_EQ(dialog->result(), 1);
    EXPECT_THAT(highlightedLines(), IsEmpty());
}

TEST_F(HighlightDialog, EmptyGroupCannotStepAndItsOkThrows) {
    const auto dialog = make(L"EMPTY");
    EXPECT_FALSE(isEnabled(*dialog, "nextButton"));
    EXPECT_EQ(codeOf([&] { DialogUser::clickIn(*dialog, "okButton"); }), eInvalidIndex);
}

TEST_F(HighlightDialog, EachChangeRedrawsTheViews) {
    int redraws = 0;
    standin::registry().updateDisplay = [&] { ++redraws; };
    const auto dialog = make(L"TWO");
    EXPECT_EQ(redraws, 1);
    DialogUser::clickIn(*dialog, "nextButton");
    EXPECT_EQ(redraws, 3);
    DialogUser::clickIn(*dialog, "prevButton");
    EXPECT_EQ(redraws, 5);
    DialogUser::clickIn(*dialog, "okButton");
    EXPECT_EQ(redraws, 6);
    const auto other = make(L"TWO");
    other->show();
    other->close();
    EXPECT_EQ(redraws, 8);
}

class OrderGroup : public GroupTest {
protected:
    OrderGroup() { addGroup(L"TWO", pick({2, 4})); }
    int order() {
        GroupData data;
        const auto command = make<CGroupCmd>();
        const int result = command->orderGroup(dictionary()->objectId(), data);
        status = command->getStatus();
        EXPECT_TRUE(user.finished());
        return result;
    }
    DialogUser user;
};

TEST_F(OrderGroup, HighlightShowsTheMembersAndThenTheOrderAgain) {
    user.click("highlightButton")
        .then([](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), QStringLiteral("CObjHighlightDlg"));
            DialogUser::clickIn(dialog, "okButton");
        })
        .click("okButton");
    EXPECT_EQ(order(), 0);
}

TEST_F(OrderGroup, EscapeOutOfTheHighlightEndsTheOrder) {
    user.click("highlightButton").then([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(order(), 0);
}

TEST_F(OrderGroup, CancelAndEscapeTakeNothingBack) {
    user.click("reverseButton").click("cancelButton");
    EXPECT_EQ(order(), 0);
    EXPECT_THAT(members(L"TWO"), ElementsAre(4, 2));
    user.click("reverseButton").then([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(order(), 0);
    EXPECT_THAT(members(L"TWO"), ElementsAre(2, 4));
}

TEST_F(OrderGroup, WithoutAParentTheStatusIsOneAndTheResultZero) {
    standin::registry().dialogParent = nullptr;
    EXPECT_EQ(order(), 0);
    EXPECT_EQ(status, 1);
}

TEST_F(OrderGroup, InaccessibleGroupEndsTheOrder) {
    addGroup(L"plan|X", pick({1}));
    user.then([](QDialog& dialog) {
        in<QTableWidget>(dialog, "groupTable").setCurrentCell(1, 0);
        DialogUser::clickIn(dialog, "highlightButton");
    });
    EXPECT_EQ(order(), 0);
}

TEST(MemberDialog, ShowsItsTextsAndOkAccepts) {
    CGroupMemberDlg dialog(nullptr, {"FIRST", "<b>SECOND</b>"});
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Group Member List"));
    EXPECT_EQ(dialog.minimumSize(), QSize(245, 135));
    const auto& list = in<QListWidget>(dialog, "memberList");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(1)->text(), QStringLiteral("<b>SECOND</b>"));
    EXPECT_EQ(list.selectionMode(), QAbstractItemView::NoSelection);
    DialogUser::clickIn(dialog, "okButton");
    EXPECT_EQ(dialog.result(), int(QDialog::Accepted));
}
