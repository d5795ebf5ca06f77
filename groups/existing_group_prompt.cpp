#include "groups/existing_group_prompt.h"

#include "groups/current_drawing.h"
#include "groups/group_listing.h"
#include "groups/group_messages.h"
#include "groups/prompt_flags.h"
#include "host/text.h"

#include <QObject>

int askExistingGroupName(HostCommandIO& io, const OdDbDatabasePtr& database, OdString& name,
                         const QString& prompt) {
    const QString question = prompt.isEmpty() ? group_messages::enterGroupName() : prompt;
    for (;;) {
        switch (askInput(io, question, QStringLiteral("?"), kNameOrNumberPrompt, &name)) {
        case kInputTyped:
            if (openGroupDictionary(database)->has(name))
                return kInputPicked;
            printFormatted(io, QObject::tr("Group '%1' is not defined.").arg(hostqt::qString(name)));
            break;
        case kInputKeyword:
            HelpGroupName(io, database);
            break;
        case kInputCancelled:
        case kInputNone: // nothing entered counts as a cancel
            return kInputCancelled;
        default:
            break;
        }
    }
}
