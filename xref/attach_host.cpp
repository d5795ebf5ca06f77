// The few questions that the attach command asks its host, each with an answer when there is no document.
#include "xref/attach_host.h"

#include "host/app.h"
#include "host/help.h"
#include "host/text.h"

namespace attach {

OdDbDatabasePtr database() {
    HostDocument* const current = currentDocument();
    return current ? current->database() : OdDbDatabasePtr();
}

HostCommandIO* io() {
    HostDocument* const current = currentDocument();
    if (current)
        return current->commandIO();
    HostDocumentManager* const manager = HostDocManager();
    return manager ? manager->fallbackIO() : nullptr;
}

QString documentFile() {
    HostDocument* const current = currentDocument();
    return current ? hostqt::qString(current->fileName()) : QString();
}

bool isUnsaved() {
    const OdDbDatabasePtr drawing = database();
    return drawing.isNull() || drawing->getFilename().isEmpty() || documentFile().isEmpty();
}

OdString word(const wchar_t* text) { return Supp_Translate(text); }

int notice(NoticeKind kind, const OdString& text) {
    const Ref<IEvents> events = Ref<IEvents>::take(Get_IEvents());
    return events ? events->notify(kind, text.c_str(), 0, 7) : 0;
}

void refuse(const OdString& text) {
    if (const auto services = appService<IAttachServices>())
        services->refuse(text.c_str());
}

bool numbersTakenNames() {
    const auto services = appService<IAttachServices>();
    return services && services->numbersTakenNames();
}

} // namespace attach

void reportToConsole(HostCommandIO* io, const OdString& text) {
    const Ref<IAttachServices> services = appService<IAttachServices>();
    if (services)
        services->report(io, text.c_str());
}
