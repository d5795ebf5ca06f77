// The section is shared with the drawing properties, which read the maximum from it.
#include "workbench/history/history_settings.h"

#include "host/typed_reads.h"

namespace workbench {

HistorySettings readHistorySettings(IParam* profile) {
    const Ref<IParam> section = openChild(profile, "FileHistory");
    HistorySettings settings;
    int on = settings.on, asks = settings.asksReason;
    readValue(section.get(), "FILEHISTORY", &on);
    readValue(section.get(), "FILEHISTORYREASON", &asks);
    readValue(section.get(), "FILEHISTORYMAX", &settings.maximum);
    settings.on = on != 0;
    settings.asksReason = asks != 0;
    return settings;
}

} // namespace workbench
