// Asks for the objects of a group command and tidies up behind it.
#include "standin/selection/group_selection_step.h"

#include "host/command_io.h"
#include "host/documents.h"
#include "sdk/db/database.h"
#include "sdk/db/entity.h"
#include "standin/selection/editor_selection.h"

namespace standin {

namespace {

// What a command has changed for the time of a selection, put back when that ends in whatever way.
class Aftermath {
public:
    Aftermath(HostEditorSelection& changedEditor, const GroupSelectionRequest& answered)
        : editor(changedEditor), request(answered), selection(changedEditor.getSelection()) {}
    ~Aftermath() {
        editor.setSelection(selection);
        for (const OdDbObjectId& id : request.highlightedIds)
            unhighlight(id);
        if (request.pickStyleCleared)
            restorePickStyle();
        HostUpdateDisplay();
    }
    Aftermath(const Aftermath&) = delete;
    Aftermath& operator=(const Aftermath&) = delete;

private:
    static void unhighlight(const OdDbObjectId& id) {
        const auto entity = odrxQuery<OdDbEntity>(id.openObject().get());
        if (!entity.isNull())
            entity->highlight(false);
    }
    void restorePickStyle() const {
        const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kDxfInt8);
        value->setInt8(static_cast<std::int8_t>(request.formerPickStyle));
        HostDocManager()->varService()->setVar(L"PICKSTYLE", value.get(), request.database, 0);
    }
    HostEditorSelection& editor;
    const GroupSelectionRequest& request;
    hostSelectionSetPtr selection;
};

} // namespace

int GroupSelectionStep::selectObjects(HostEditorSelection& editor, const GroupSelectionRequest& request,
                                      hostSelectionSet& result) {
    const Aftermath aftermath(editor, request);
    const wchar_t* const keywords = request.keywords.isEmpty() ? nullptr : request.keywords.c_str();
    const int flags = kKeywordKeeps | (request.single ? kOnePickEnds : 0);
    hostSelectionSetPtr chosen;
    const int answer = editor.selectObjects(&chosen, 0, request.prompt.c_str(), keywords, flags, 0, 0, 0, 0);
    if (chosen.isNull() || answer == kInputCancelled)
        return answer;
    OdDbObjectIdArray ids;
    chosen->objectIds(ids);
    for (const OdDbObjectId& id : ids)
        result.append(id);
    return answer;
}

} // namespace standin
