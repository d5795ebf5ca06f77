// The commands of the plug-in in the menus.
#include "workbench/commands/commands.h"

#include <QCoreApplication>

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("PlugInEntries", text); }

} // namespace

void addPlugInEntries(MenuSink& menus) {
    menus.addEntry({Menu::File, tr("Drawing &properties..."), "DWGPROPS", "show_msg", {}, true});
    menus.addEntry({Menu::Tools, tr("&Options..."), "QPREF", "pref"});
    menus.addEntry({Menu::Tools, tr("System &variable"), "SETVAR"});
}

} // namespace workbench
