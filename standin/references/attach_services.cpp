// Base folder, settings and console of attached references.
#include "standin/references/attach_services.h"

#include "host/app.h"
#include "host/command_io.h"
#include "host/dir_list.h"
#include "host/documents.h"
#include "host/help.h"
#include "host/std_dirs.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "sdk/db/database.h"

#include <QFileInfo>

namespace standin {

CXStringW AttachServices::basePath(OdDbDatabase* database) {
    const QString file = database ? hostqt::qString(database->getFilename()) : QString();
    return file.isEmpty() ? CXStringW() : hostqt::cxStringW(QFileInfo(file).absolutePath());
}

IParam* AttachServices::settings() {
    return openChild(appService<IProfile>().get(), "AttachReference", 1).detach();
}

void AttachServices::report(HostCommandIO* io, const wchar_t* text) {
    HostDocumentManager* const documents = HostDocManager();
    HostCommandIO* const console = io || !documents ? io : documents->fallbackIO();
    if (console)
        console->printLine(text);
}

void AttachServices::refuse(const wchar_t* text) {
    if (const Ref<IEvents> events = Ref<IEvents>::take(Get_IEvents()))
        events->notify(0, text, 0, 7);
}

QStringList referenceFolders() {
    QStringList folders;
    const Ref<IStdDirs> dirs = appService<IStdDirs>();
    for (const char* section : {"XRefs", "Support"}) {
        CKWVariant list;
        if (!dirs || !dirs->GetDirList(section, &list))
            continue;
        for (const auto& entry : elementsOf(stdDirListOf(list)))
            folders << hostqt::qString(entry->GetPath());
    }
    return folders;
}

} // namespace standin
