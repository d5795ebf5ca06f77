// Every text and property of the dialogs of the group commands, and the place of every control.
#include "groups/group_dlg.h"
#include "groups/group_member_dlg.h"
#include "groups/group_reorder_dlg.h"
#include "groups/obj_highlight_dlg.h"
#include "tests/groups/dialog_description.h"
#include "tests/groups/group_fixture.h"

#include <QTableWidget>

namespace {

// Qt adds the system menu to a close button.
const Qt::WindowFlags dialogFlags = Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint |
                                    Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint;

using Properties = std::vector<DialogProperty>;

const Properties groupingProperties{
    {"", "windowTitle", "Object Grouping"},
    {"", "objectName", "CGroupDlg"},
    {"", "windowIcon", "none"},
    {"", "minimumSize", "380x420"},
    {"", "maximumSize", "380x420"},
    {"groupTable", "columnCount", "2"},
    {"groupTable", "selectionBehavior", "SelectRows"},
    {"groupTable", "selectionMode", "SingleSelection"},
    {"groupTable", "editTriggers", "NoEditTriggers"},
    {"groupTable", "showGrid", "false"},
    {"groupTable.horizontal", "stretchLastSection", "true"},
    {"groupTable.horizontal", "visible", "true"},
    {"groupTable.vertical", "visible", "false"},
    {"groupTable.vertical", "defaultSectionSize", "15"},
    {"groupTable.vertical", "minimumSectionSize", "15"},
    {"nameEdit", "sizePolicy", "Expanding,Fixed"},
    {"nameEdit", "enabled", "true"},
    {"descriptionEdit", "sizePolicy", "Expanding,Fixed"},
    {"descriptionEdit", "text", ""},
    {"findNameButton", "text", "&Find Name <"},
    {"highlightCheck", "text", "Highlight"},
    {"highlightCheck", "checked", "false"},
    {"includeUnnamedCheck", "text", "&Include Unnamed"},
    {"includeUnnamedCheck", "checked", "false"},
    {"newButton", "text", "&New <"},
    {"selectableCheck", "text", "Selectable"},
    {"selectableCheck", "checked", "true"},
    {"unnamedCheck", "text", "Unnamed"},
    {"unnamedCheck", "checked", "false"},
    {"removeButton", "text", "&Remove <"},
    {"addButton", "text", "&Add <"},
    {"renameButton", "text", "Rename"},
    {"renameButton", "enabled", "true"},
    {"reorderButton", "text", "Re-&Order..."},
    {"descriptionButton", "text", "Description"},
    {"descriptionButton", "sizePolicy", "Expanding,Preferred"},
    {"explodeButton", "text", "Explode"},
    {"explodeButton", "sizePolicy", "Expanding,Preferred"},
    {"selectableButton", "text", "Selectable"},
    {"selectableButton", "sizePolicy", "Expanding,Preferred"},
    {"selectableButton", "checkable", "false"},
    {"messageLabel", "text", ""},
    {"messageLabel", "alignment", "AlignLeading|AlignVCenter"},
    {"okButton", "text", "OK"},
    {"cancelButton", "text", "Cancel"},
    {"helpButton", "text", "Help"},
};
const char* const groupingLayout =
    "V(groupTable, "
    "box 'Group Identification' grid('Group name:'@0,0, nameEdit@0,1+2, 'Description:'@1,0, "
    "descriptionEdit@1,1+2, findNameButton@2,0, H(highlightCheck, includeUnnamedCheck)@2,1+2), "
    "box 'Create Group' H(newButton, selectableCheck, unnamedCheck), "
    "box 'Change Group' V(H(removeButton, addButton, renameButton, reorderButton), "
    "H(descriptionButton, explodeButton, selectableButton)), "
    "H(messageLabel, ~), H(~, okButton, cancelButton, helpButton, ~))";

const Properties reorderProperties{
    {"", "windowTitle", "Order Group"},
    {"", "objectName", "CGroupReorderDlg"},
    {"", "windowIcon", "none"},
    {"", "minimumSize", "380x365"},
    {"", "maximumSize", "380x365"},
    {"groupTable", "columnCount", "1"},
    {"groupTable", "selectionBehavior", "SelectRows"},
    {"groupTable", "selectionMode", "SingleSelection"},
    {"groupTable", "editTriggers", "NoEditTriggers"},
    {"groupTable", "showGrid", "false"},
    {"groupTable", "focusPolicy", "NoFocus"},
    {"groupTable.horizontal", "stretchLastSection", "true"},
    {"groupTable.vertical", "visible", "false"},
    {"groupTable.vertical", "defaultSectionSize", "15"},
    {"groupTable.vertical", "minimumSectionSize", "15"},
    {"descriptionLabel", "text", "None"},
    {"descriptionLabel", "textFormat", "PlainText"},
    {"removeFromLabel", "text", "Remove from position (0 - 1):"},
    {"removeFromEdit", "minimumWidth", "80"},
    {"removeFromEdit", "maximumWidth", "80"},
    {"newPositionLabel", "text", "Enter new position number for the object (0 - 1):"},
    {"newPositionEdit", "minimumWidth", "80"},
    {"newPositionEdit", "maximumWidth", "80"},
    {"countLabel", "text", "Number of objects (less than 2):"},
    {"countEdit", "minimumWidth", "80"},
    {"countEdit", "maximumWidth", "80"},
    {"reorderButton", "text", "Re-Order"},
    {"highlightButton", "text", "Highlight"},
    {"reverseButton", "text", "Reverse Order"},
    {"okButton", "text", "OK"},
    {"cancelButton", "text", "Cancel"},
    {"helpButton", "text", "Help"},
    {"messageLabel", "text", ""},
};
const char* const reorderLayout =
    "V(groupTable, box 'Description' V(descriptionLabel), "
    "box '' V(H(removeFromLabel, ~, removeFromEdit), H(newPositionLabel, ~, newPositionEdit), "
    "H(countLabel, ~, countEdit)), "
    "H(reorderButton, highlightButton, reverseButton), H(~, okButton, cancelButton, helpButton, ~), "
    "H(messageLabel, ~))";

const Properties highlightProperties{
    {"", "windowTitle", "Object grouping"},
    {"", "objectName", "CObjHighlightDlg"},
    {"", "windowIcon", "none"},
    {"", "minimumSize", "210x110"},
    {"", "maximumSize", "210x110"},
    {"prevButton", "text", "Prev"},
    {"prevButton", "enabled", "false"},
    {"nextButton", "text", "Next"},
    {"nextButton", "enabled", "true"},
    {"okButton", "text", "OK"},
    {"objectLabel", "text", "Object: 0"},
    {"totalLabel", "text", "Total: 2"},
};
const char* const highlightLayout =
    "V(H(~, prevButton, nextButton, ~), H(~, okButton, ~), H(objectLabel, ~, totalLabel))";

const Properties memberProperties{
    {"", "windowTitle", "Group Member List"},
    {"", "objectName", "CGroupMemberDlg"},
    {"", "windowIcon", "none"},
    {"", "minimumSize", "245x135"},
    {"", "maximumSize", "245x135"},
    {"memberList", "selectionMode", "NoSelection"},
    {"memberList", "count", "1"},
    {"okButton", "text", "OK"},
};

} // namespace

class DialogProperties : public GroupTest {
protected:
    DialogProperties() {
        addGroup(L"PAIR", pick({0, 1}));
        data.name = L"PAIR";
    }
    void expect(QDialog& dialog, const Properties& properties, const char* layout) {
        dialog.show();
        EXPECT_EQ(dialog.windowFlags(), dialogFlags);
        EXPECT_EQ(dialog.parentWidget(), &window);
        for (const DialogProperty& one : properties)
            EXPECT_EQ(valueOf(dialog, one).toStdString(), one.value) << one.control << " " << one.property;
        EXPECT_EQ(layoutText(dialog).toStdString(), layout);
    }
    static QStringList headersOf(const QDialog& dialog) {
        const auto* table = dialog.findChild<QTableWidget*>(QStringLiteral("groupTable"));
        QStringList texts;
        for (int column = 0; column < table->columnCount(); ++column)
            texts << table->horizontalHeaderItem(column)->text();
        return texts;
    }
    GroupData data;
};

TEST_F(DialogProperties, OfObjectGrouping) {
    CGroupDlg dialog(&window, dictionary()->objectId(), data);
    expect(dialog, groupingProperties, groupingLayout);
    EXPECT_EQ(headersOf(dialog), (QStringList{"Group name", "Selectable"}));
}

TEST_F(DialogProperties, OfObjectGroupingFollowTheRecord) {
    data.includeUnnamed = data.highlight = data.unnamed = true;
    data.selectable = false;
    CGroupDlg dialog(&window, dictionary()->objectId(), data);
    const Properties followed{{"includeUnnamedCheck", "checked", "true"},
                              {"highlightCheck", "checked", "true"},
                              {"selectableCheck", "checked", "false"},
                              {"unnamedCheck", "checked", "false"},
                              {"nameEdit", "enabled", "false"}};
    for (const DialogProperty& one : followed)
        EXPECT_EQ(valueOf(dialog, one).toStdString(), one.value) << one.control << " " << one.property;
}

TEST_F(DialogProperties, OfOrderGroup) {
    CGroupReorderDlg dialog(&window, dictionary()->objectId(), data);
    expect(dialog, reorderProperties, reorderLayout);
    EXPECT_EQ(headersOf(dialog), QStringList{"Group name"});
}

TEST_F(DialogProperties, OfTheWalkThroughTheMembers) {
    CObjHighlightDlg dialog(&window, group(L"PAIR"), &host.document);
    expect(dialog, highlightProperties, highlightLayout);
    EXPECT_EQ(dialog.layout()->itemAt(0)->layout()->spacing(), 10);
}

TEST_F(DialogProperties, OfTheListOfTexts) {
    CGroupMemberDlg dialog(&window, {"only"});
    expect(dialog, memberProperties, "V(memberList, H(~, okButton, ~))");
}
