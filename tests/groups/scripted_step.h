// A host's selection step that answers out of the queue of the scripted console.
#pragma once

#include "host/group_selection_step.h"
#include "sdk/db/entity.h"
#include "tests/support/fixture_host.h"
#include "tests/support/scripted_io.h"

// Tidies up afterwards as a host's step does.
class ScriptedStep : public CKWUnknownImpl<IGroupSelectionStep> {
public:
    ScriptedStep(ScriptedIO& console, FixtureVars& variables) : io(console), vars(variables) {}
    int selectObjects(HostEditorSelection&, const GroupSelectionRequest& request,
                      hostSelectionSet& result) override {
        requests.push_back(request);
        const ScriptedAnswer given = io.take();
        io.noteAnswer({request.prompt, request.keywords, 0}, given);
        for (const OdDbObjectId& id : given.objects)
            result.append(id);
        for (const OdDbObjectId id : request.highlightedIds)
            odrxCast<OdDbEntity>(id.safeOpenObject())->highlight(false);
        if (request.pickStyleCleared)
            vars.set("PICKSTYLE", request.formerPickStyle);
        return given.code;
    }
    std::vector<GroupSelectionRequest> requests;

private:
    ScriptedIO& io;
    FixtureVars& vars;
};
