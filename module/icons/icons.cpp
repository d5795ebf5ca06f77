// Tree icons come from the host's store of icons, tool icons straight from the resources of the theme.
#include "module/icons/icons.h"

#include "host/qt_ui_core.h"
#include "host/style.h"
#include "module/icons/icon_table.h"

// The resources register themselves at load; naming them here keeps them in every binary that uses an icon.
static void keepResources() { Q_INIT_RESOURCE(icons); }

namespace {

const int fallbackIcon = 33;
const bool resourcesKept = (keepResources(), true);

} // namespace

QIcon treeIcon(int number) {
    Q_UNUSED(resourcesKept)
    return hostIconResource::get(iconTable().value(number, iconTable().value(fallbackIcon)));
}

QIcon toolIcon(int number) {
    return host_qt_ui_core::createHostDisableIcon(
        toolIconPath(number, hostGetQtStyleManager()->themeNumber()));
}
