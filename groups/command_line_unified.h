// The group command of the command line: one option in each run. Base of the commands that ask for a group or
// for objects first.
#pragma once

#include "groups/group_cmd.h"
#include "host/command_io.h"
#include "host/selection.h"
#include "sdk/db/dictionary.h"

class CCommandLineGroupUnified : public CGroupCmd {
public:
    // One run: a keyword of the prompt and its flow. `params` may name the group that Remove works on, as
    // "GroupName".
    int Run(IParam* params) override;

protected:
    // What one run works on.
    struct Scene {
        OdDbDatabasePtr database;
        HostCommandIO& io;
        HostEditorSelection* editor;
    };
    // The end of an Add flow, which clears `set`. Without a selection step of the host nothing is added, the
    // members stay highlighted and `status` stays 2: that is meant.
    int addToGroup(const Scene& scene, const OdDbGroupPtr& group, const OdDbObjectIdArray& members,
                   const hostSelectionSetPtr& set);

private:
    int runOption(int reply, const Scene& scene, IParam* params);
    int runOrder(const Scene& scene);
    int runAdd(const Scene& scene);
    int runRemove(const Scene& scene, IParam* params);
    int removeFrom(const Scene& scene, const OdDbDictionaryPtr& dictionary, const OdString& name);
    int runExplode(const Scene& scene);
    int runRename(const Scene& scene);
    int runSelectable(const Scene& scene);
    int runCreate(const Scene& scene);
    int createNamed(const Scene& scene, const OdString& name);
    int askToRedefine(const Scene& scene, const OdString& name);

    Ref<IKWUnknown> furtherHeld; // released before `held`
};
