// Names, members and drawings that are not as they should be, and texts in another language.
#include "groups/command_line_edit.h"
#include "groups/command_line_from_selection.h"
#include "groups/command_line_unified.h"
#include "groups/group_dlg.h"
#include "groups/group_member_dlg.h"
#include "groups/group_reorder_dlg.h"
#include "groups/highlight.h"
#include "groups/obj_highlight_dlg.h"
#include "sdk/db/layer_table.h"
#include "tests/groups/context_marker.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/group_fixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class BadInput : public GroupTest {
protected:
    int runUnified(std::initializer_list<ScriptedAnswer> answers) {
        answer(answers);
        return run<CCommandLineGroupUnified>();
    }
};

TEST_F(BadInput, NamesWithMarkersMarkupAndLineFeedsPassThroughEveryMessage) {
    for (const wchar_t* name : {L"%1 %2 %s %n", L"<b>bold</b>", L"two\nlines", L"Стол", L"E\u0301"}) {
        addGroup(name, pick({0, 1}));
        EXPECT_EQ(runUnified({keyword(7), typed(name), keyword(1)}), 0);
        EXPECT_EQ(io.printed.back(), L"Group '" + OdString(name) + L"' already exists.");
        setPickStyle(0);
        selection.select(pick({0}));
        EXPECT_EQ(runUnified({keyword(3), typed(name)}), 0);
        EXPECT_EQ(io.printed.back(),
                  L"\n1 entities from current selection removed from group '" + OdString(name) + L"'");
        EXPECT_EQ(runUnified({keyword(4), typed(name)}), 0);
        EXPECT_FALSE(hasGroup(name));
    }
}

TEST_F(BadInput, ErasedMembersCountAsAbsent) {
    addGroup(L"G", pick({0, 1, 2}));
    lines[1].safeOpenObject(OdDb::kForWrite)->erase(true);
    EXPECT_EQ(runUnified({keyword(1), typed(L"G"), typed(L"0"), typed(L"1"), typed(L"1")}), 0);
    EXPECT_EQ(io.prompts[2].text, OdString(L"Enter position number of the object to reorder (0 - 1):"));
    EXPECT_THAT(members(L"G"), ElementsAre(2, 0));
    lines[0].safeOpenObject(OdDb::kForWrite)->erase(true);
    lines[2].safeOpenObject(OdDb::kForWrite)->erase(true);
    EXPECT_EQ(runUnified({keyword(1), typed(L"G")}), 0);
    EXPECT_EQ(io.printed.back(), OdString(L"Less than 2 members, nothing to order."));
}

TEST_F(BadInput, MemberErasedWhileItIsHighlightedEndsInItsException) {
    addGroup(L"G", pick({0, 1}));
    const OdDbObjectIdArray ids = highlightMembers(group(L"G"));
    lines[1].safeOpenObject(OdDb::kForWrite)->erase(true);
    EXPECT_EQ(codeOf([&] { setObjectsHighlight(ids, false); }), eWasErased);
    EXPECT_THAT(highlightedLines(), IsEmpty());
}

TEST_F(BadInput, MemberThatIsNoEntityThrowsTheWrongClassWhereItIsHighlighted) {
    addGroup(L"G", {lines[0], dictionary()->objectId()});
    answer({keyword(2), typed(L"G")});
    EXPECT_THROW(run<CCommandLineGroupUnified>(), OdError_NotThatKindOfClass);
}

TEST_F(BadInput, SelectionOnALockedLayerIsGroupedLikeAnyOther) {
    const auto layer = odrxCast<OdDbLayerTableRecord>(
        odrxCast<OdDbEntity>(lines[0].safeOpenObject())->layerId().safeOpenObject(OdDb::kForWrite));
    layer->setIsLocked(true);
    selection.select(pick({0}));
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 0);
    EXPECT_THAT(members(L"Group1"), ElementsAre(0));
}

TEST_F(BadInput, DrawingWithoutAGroupDictionaryGetsOne) {
    const auto root =
        odrxCast<OdDbDictionary>(database->getNamedObjectsDictionaryId().safeOpenObject(OdDb::kForWrite));
    root->remove(L"ACAD_GROUP");
    ASSERT_TRUE(database->getGroupDictionaryId(false).isNull());
    selection.select(pick({0}));
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 0);
    EXPECT_TRUE(hasGroup(L"Group1"));
}

TEST_F(BadInput, ErasedGroupIsNotDefined) {
    addGroup(L"G", pick({0}));
    group(L"G", OdDb::kForWrite)->erase(true);
    EXPECT_EQ(runUnified({keyword(2), typed(L"G"), cancel()}), 1);
    EXPECT_EQ(io.printed.back(), OdString(L"Group 'G' is not defined."));
}

TEST_F(BadInput, GroupErasedWhileTheDialogIsOpenEndsTheRunWithItsException) {
    addGroup(L"G", pick({0}));
    DialogUser user;
    user.then([&](QDialog& dialog) {
        in<QTableWidget>(dialog, "groupTable").setCurrentCell(0, 0);
        group(L"G", OdDb::kForWrite)->erase(true);
        DialogUser::clickIn(dialog, "selectableButton");
    });
    EXPECT_EQ(codeOf([&] { run<CGroupCmd>(); }), eWasErased);
    EXPECT_TRUE(user.finished());
    EXPECT_FALSE(database->isUndoBlockStarted());
}

TEST_F(BadInput, NameThatTheDictionaryRefusesLeavesTheRunWithItsException) {
    addGroup(L"G", pick({0}));
    answer({keyword(5), typed(L"G"), typed(L"")});
    EXPECT_EQ(codeOf([&] { run<CCommandLineGroupUnified>(); }), eInvalidInput);
    EXPECT_TRUE(hasGroup(L"G"));
}

TEST_F(BadInput, TextsOfTheCommandsAreTranslatedInTheContextQObject) {
    const ContextMarker marker("QObject");
    EXPECT_EQ(runUnified({cancel()}), 1);
    EXPECT_EQ(io.prompts[0].text,
              OdString(L"~Enter a group option [~?/Order/Add/Remove/Explode/REName/Selectable/Create] "
                       L"<~Create>:"));
}

// Title, labels, buttons, boxes and headers, as far as they have a text.
static QStringList textsOf(const QDialog& dialog) {
    QStringList texts{dialog.windowTitle()};
    for (const auto* label : dialog.findChildren<QLabel*>())
        texts << label->text();
    for (const auto* button : dialog.findChildren<QAbstractButton*>())
        texts << button->text();
    for (const auto* box : dialog.findChildren<QGroupBox*>())
        texts << box->title();
    for (const auto* table : dialog.findChildren<QTableWidget*>())
        for (int column = 0; column < table->columnCount(); ++column)
            texts << table->horizontalHeaderItem(column)->text();
    texts.removeAll(QString());
    return texts;
}

TEST_F(BadInput, TextsOfTheDialogsAreTranslatedInTheContextQDialog) {
    addGroup(L"G", pick({0, 1}));
    const ContextMarker marker("QDialog");
    GroupData data;
    const OdDbObjectId groups = dictionary()->objectId();
    CGroupDlg grouping(&window, groups, data);
    EXPECT_EQ(in<QTableWidget>(grouping, "groupTable").item(0, 1)->text(), QStringLiteral("~Yes"));
    CGroupReorderDlg order(&window, groups, data);
    CObjHighlightDlg highlight(&window, group(L"G"), &host.document);
    CGroupMemberDlg names(&window, {});
    for (const QDialog* dialog : std::initializer_list<QDialog*>{&grouping, &order, &highlight, &names})
        for (const QString& text : textsOf(*dialog))
            EXPECT_TRUE(text.startsWith(QLatin1Char('~')))
                << dialog->objectName().toStdString() << ": " << text.toStdString();
}

TEST_F(BadInput, YesAndNoOfTheListAreNotTranslated) {
    addGroup(L"G", pick({0}));
    const ContextMarker marker("QObject");
    EXPECT_EQ(runUnified({keyword(0), enter(), cancel()}), 1);
    EXPECT_EQ(io.printed[1].wide().find(L"~Selectable"), 32u);
    EXPECT_EQ(io.printed[2].wide().substr(34, 3), L"Yes");
}

// Translates one text of the commands.
class OneText : public ContextMarker {
public:
    OneText(const char* text, const char* translated)
        : ContextMarker("QObject"), source(text), translation(translated) {}
    QString translate(const char*, const char* text, const char*, int) const override {
        return qstrcmp(text, source) == 0 ? QString::fromUtf8(translation) : QString();
    }

private:
    const char* source;
    const char* translation;
};

TEST_F(BadInput, AutomaticNameFollowsATranslationWithAPercentSign) {
    const OneText translator("Group%1", "Nr%d");
    selection.select(pick({0}));
    EXPECT_EQ(run<CCommandLineGroupFromSelection>(), 0);
    EXPECT_TRUE(hasGroup(L"Nr1"));
}

TEST_F(BadInput, MarkBeforeTheTranslatedOptionsIsCut) {
    const OneText translator("? Order Add Remove Explode REName Selectable Create _ "
                             "? Order Add Remove Explode REName Selectable Create",
                             "Kwrd: ? Ordnen Ordnen Neu _ ? Order Add Create");
    EXPECT_EQ(runUnified({cancel()}), 1);
    EXPECT_EQ(io.prompts[0].text, OdString(L"Enter a group option [?/Ordnen/Neu] <Create>:"));
    EXPECT_EQ(io.prompts[0].keywords, OdString(L"? Ordnen Ordnen Neu"));
}

TEST_F(BadInput, QuotedOptionsFallApartAtEachBlank) {
    const OneText translator("\"Add objects\" \"Remove objects\" REName", "\"Neu\" \"Weg  Neu\" Name Name");
    addGroup(L"G", pick({0}));
    selection.select(pick({0}));
    answer({cancel()});
    EXPECT_EQ(run<CCommandLineGroupEdit>(), 1);
    EXPECT_EQ(io.prompts[0].text, OdString(L"Enter a group option [Neu/Weg/Name]"));
    EXPECT_EQ(io.prompts[0].keywords, OdString(L"\"Neu\" \"Weg  Neu\" Name Name"));
}
