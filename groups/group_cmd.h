// The group command with the Object Grouping dialog, and the base of the group commands of the command line.
#pragma once

#include "groups/group_data.h"
#include "host/cmd_process.h"
#include "sdk/db/database.h"

class CGroupDlg;
class HostEditorSelection;

// `status` after a run: 2 running or no verdict, 1 cancelled or failed, 0 done.
class CGroupCmd : public CKWUnknownImpl<ICmdProcess> {
public:
    int Run(IParam* params) override;
    // Runs the dialog that orders the members of a group. 0.
    virtual int orderGroup(OdDbObjectId dictionaryId, GroupData& data);

protected:
    // Sets `status` and gives it back, as the result of a run.
    int end(int verdict) { return status = verdict; }
    // Walks through the members in a dialog: 0, 4 for a group that is not accessible, 20 without a parent for
    // the dialog, 314 when it was not left by its OK.
    int highlightGroupMembers(GroupData& data);

private:
    // What a run of the dialog works on, as it was at the start.
    struct DialogRun {
        CGroupDlg& dialog;
        HostEditorSelection* editor;
        OdDbObjectId dictionaryId;
        GroupData& data;
    };
    int runDialog(const DialogRun& run);
    int workFor(int result, const DialogRun& run);
};
