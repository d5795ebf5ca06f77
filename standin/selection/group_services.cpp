// Tells on the console why a group was not made.
#include "standin/selection/group_services.h"

#include "host/command_io.h"
#include "host/documents.h"
#include "host/text.h"
#include "sdk/rx/od_error.h"

#include <QCoreApplication>

namespace standin {

namespace {

// The text of the code; where the exception has one of its own, such as a name, that follows.
QString reasonOf(const OdError& error) {
    const QString kind = hostqt::qString(OdError(error.code()).description());
    const QString detail = hostqt::qString(error.description());
    return detail == kind ? kind : QStringLiteral("%1 (%2)").arg(kind, detail);
}

HostCommandIO* console() {
    if (HostDocument* const document = currentDocument())
        return document->commandIO();
    HostDocumentManager* const documents = HostDocManager();
    return documents ? documents->fallbackIO() : nullptr;
}

} // namespace

void GroupServices::creationFailed(const OdError& error) {
    HostCommandIO* const io = console();
    if (!io)
        return;
    const QString text = QCoreApplication::translate("GroupServices", "The group was not made: %1.");
    io->printLine(hostqt::odString(text.arg(reasonOf(error))).c_str());
}

} // namespace standin
