// The option Order of the group command: moves members inside a group's order.
#include "groups/command_line_unified.h"

#include "groups/current_drawing.h"
#include "groups/existing_group_prompt.h"
#include "groups/group_messages.h"
#include "groups/prompt_flags.h"

#include <QObject>
#include <algorithm>
#include <cwchar>

namespace {

using Number = std::uint32_t;

// Text that is no number is position 0: that is meant.
Number numberOf(const OdString& text) { return static_cast<Number>(std::wcstoul(text.c_str(), nullptr, 10)); }

QString rangeText(Number lowest, Number highest) { return QString::asprintf(" (%u - %u):", lowest, highest); }

struct NumberPrompt {
    QString text;
    QString keywords; // null: none
    Number highest;
};

// kInputTyped with a number from 0 to the highest one, kInputCancelled, or kInputKeyword for a prompt that
// has a keyword.
int askNumber(HostCommandIO& io, const NumberPrompt& prompt, Number& number) {
    for (;;) {
        OdString value;
        const int reply = askInput(io, prompt.text, prompt.keywords, kNameOrNumberPrompt, &value);
        if (reply == kInputCancelled || reply == kInputNone)
            return kInputCancelled;
        if (reply == kInputKeyword && !prompt.keywords.isNull())
            return kInputKeyword;
        number = numberOf(value);
        if (number <= prompt.highest)
            return kInputTyped;
        printFormatted(io, QObject::tr("Requires a value of %1 to %2.").arg(0).arg(prompt.highest));
    }
}

// A transfer that fails is no failure of the command: that is meant.
void transferQuietly(const OdDbGroupPtr& group, Number from, Number to, Number count) {
    try {
        group->transfer(from, to, count);
    } catch (...) {
    }
}

} // namespace

// The third prompt shows 1 as its lowest value where 0 is accepted: that is meant.
int CCommandLineGroupUnified::runOrder(const Scene& scene) {
    OdString name;
    if (askExistingGroupName(scene.io, scene.database, name) != kInputPicked)
        return end(1);
    const OdDbGroupPtr group = groupByName(openGroupDictionary(scene.database), name, OdDb::kForWrite);
    const Number size = group->numEntities();
    if (size < 2) {
        printLine(scene.io, QObject::tr("Less than 2 members, nothing to order."));
        return end(0);
    }
    const Number last = size - 1;
    Number from = 0, to = 0, count = 0;
    const int reply =
        askNumber(scene.io,
                  {QObject::tr("Enter position number of the object to reorder") + rangeText(0, last),
                   QObject::tr("\"Reverse order\" _ \"Reverse order\""), last},
                  from);
    if (reply == kInputKeyword) {
        group->reverse();
        printLine(scene.io, QObject::tr("Object order has been reversed."));
        return end(0);
    }
    const NumberPrompt newPosition{
        QObject::tr("Enter new position number for the object") + rangeText(0, last), {}, last};
    if (reply == kInputCancelled || askNumber(scene.io, newPosition, to) == kInputCancelled)
        return end(1);
    const Number limit = size - std::max(from, to);
    const NumberPrompt howMany{
        QObject::tr("Enter number of objects to reorder") + rangeText(1, limit), {}, limit};
    if (askNumber(scene.io, howMany, count) == kInputCancelled)
        return end(1);
    transferQuietly(group, from, to, count);
    return end(0);
}
