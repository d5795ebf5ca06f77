#include "groups/group_messages.h"

#include "groups/keyword_list.h"
#include "host/text.h"

#include <QObject>

namespace group_messages {

QString enterGroupName() { return QObject::tr("Enter a group name"); }

QString enterNewName() { return QObject::tr("Enter a new name for group"); }

QString enterDescription() { return QObject::tr("Enter a group description:"); }

QString enterGroupOption() { return QObject::tr("Enter a group option [%1]"); }

QString selectGroupKeywords() { return QObject::tr("? Name _ ? Name"); }

QString selectGroup() {
    const QStringList words = keywordWordsHelpFirst(localKeywords(selectGroupKeywords()));
    return QObject::tr("Select group or [%1]").arg(keywordBracket(words));
}

QString selectObjects() { return QObject::tr("Select objects"); }

QString selectObjectsIn() { return QObject::tr("Select objects [%1]"); }

QString selectObjectsToAdd() { return QObject::tr("Select objects to add to group..."); }

QString endKeywords() { return QObject::tr("End *E _ End *E"); }

QString groupExists(const OdString& name) {
    return QObject::tr("Group '%1' already exists.").arg(hostqt::qString(name));
}

QString invalidName() { return QObject::tr("Group name is invalid."); }

QString groupCreated(const OdString& name) {
    return QObject::tr("\nA group '%1' was created").arg(hostqt::qString(name));
}

QString notAMember() { return QObject::tr("Object is not a member of a group."); }

QString warning() { return QObject::tr("Warning"); }

QString removingAll(const OdString& name) {
    return QObject::tr("You are trying to remove all entities from group '%1'. Continue?")
        .arg(hostqt::qString(name));
}

QString removed(int count, const OdString& name) {
    return QObject::tr("\n%1 entities from current selection removed from group '%2'")
        .arg(QString::number(count), hostqt::qString(name));
}

} // namespace group_messages

void printLine(HostCommandIO& io, const QString& text) { io.printLine(hostqt::odString(text).c_str()); }

void printFormatted(HostCommandIO& io, const QString& text) {
    io.printFormatted(hostqt::odString(text).c_str());
}

int askInput(HostCommandIO& io, const QString& prompt, const QString& keywords, int flags, OdString* result) {
    const OdString promptText = hostqt::odString(prompt);
    const OdString keywordText = hostqt::odString(keywords);
    return io.getInput(promptText.c_str(), keywords.isNull() ? nullptr : keywordText.c_str(), flags, result,
                       0);
}
