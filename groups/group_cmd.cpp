#include "groups/group_cmd.h"

#include "groups/create_group.h"
#include "groups/current_drawing.h"
#include "groups/find_name.h"
#include "groups/group_dlg.h"
#include "groups/group_reorder_dlg.h"
#include "groups/highlight.h"
#include "groups/local_undo.h"
#include "groups/obj_highlight_dlg.h"
#include "groups/selection_step.h"
#include "host/modal_runner.h"
#include "host/qt_ui_core.h"

#include <optional>

namespace {

constexpr int kNotAccessible = 4;
constexpr int kNoParent = 20;
constexpr int kNotConfirmed = 314;

bool endsRun(int result) {
    return result == CGroupDlg::kAccepted || result == CGroupDlg::kEnded || result == CGroupDlg::kCancelled;
}

bool isWork(int result) {
    return result == CGroupDlg::kNew || result == CGroupDlg::kRemove || result == CGroupDlg::kAdd ||
           result == CGroupDlg::kReorder || result == CGroupDlg::kFindName;
}

} // namespace

// The end is in this order: the record, then what Cancel takes back, then the undo block, then the dialog.
int CGroupCmd::Run(IParam*) {
    status = 2;
    HostEditorSelection* const editor = currentEditor();
    const OdDbDatabasePtr database = currentDatabase();
    const OdDbObjectId dictionaryId = database->getGroupDictionaryId(true);
    std::optional<GroupData> data(std::in_place);
    const host_qt_ui_core::ParentWrapper parent = host_qt_ui_core::parentForDialog();
    if (!parent)
        return end(1);
    CGroupDlg dialog(parent, dictionaryId, *data);
    HostLocalUndo undo(database);
    const int result = runDialog({dialog, editor, dictionaryId, *data});
    data.reset();
    if (result != CGroupDlg::kCancelled)
        return end(0);
    undo.takeBack();
    return end(1);
}

// Escape gives 0, which shows the dialog again as every unknown result does: that is meant.
int CGroupCmd::runDialog(const DialogRun& run) {
    for (;;) {
        const int result = runModal(run.dialog);
        dropHighlight(run.data);
        if (endsRun(result))
            return result;
        if (result == CGroupDlg::kHighlight)
            return CGroupDlg::kEnded;
        if (isWork(result) && workFor(result, run) != 0)
            return CGroupDlg::kEnded;
    }
}

// The buttons Add and Remove can be pressed without a chosen row, after a new fill of the table.
int CGroupCmd::workFor(int result, const DialogRun& run) {
    const bool asks = result == CGroupDlg::kAdd || result == CGroupDlg::kRemove;
    if (asks && run.data.group.isNull())
        return kCannotAsk;
    if (result == CGroupDlg::kRemove)
        return removeObjectsPrompt(run.editor, run.data, false);
    if (result == CGroupDlg::kAdd)
        return addObjectsPrompt(run.editor, run.data);
    if (result == CGroupDlg::kReorder)
        return orderGroup(run.dictionaryId, run.data);
    if (result == CGroupDlg::kFindName)
        return pickGroupMember(run.editor, run.dictionaryId);
    const int failure = createGroupFromData(run.editor, run.dictionaryId, run.data);
    run.dialog.refillTable();
    return failure;
}

int CGroupCmd::orderGroup(OdDbObjectId dictionaryId, GroupData& data) {
    odrxCast<OdDbDictionary>(dictionaryId.openObject());
    const host_qt_ui_core::ParentWrapper parent = host_qt_ui_core::parentForDialog();
    if (!parent) {
        status = 1;
        return 0;
    }
    CGroupReorderDlg dialog(parent, dictionaryId, data);
    while (runModal(dialog) == CGroupReorderDlg::kHighlight && highlightGroupMembers(data) == 0) {
    }
    return 0;
}

int CGroupCmd::highlightGroupMembers(GroupData& data) {
    if (data.group->isNotAccessible())
        return kNotAccessible;
    const host_qt_ui_core::ParentWrapper parent = host_qt_ui_core::parentForDialog();
    if (!parent) {
        status = 1;
        return kNoParent;
    }
    CObjHighlightDlg dialog(parent, data.group, currentDocument());
    return runModal(dialog) == QDialog::Accepted ? 0 : kNotConfirmed;
}
