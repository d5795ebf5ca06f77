// Which commands exist while the module is loaded: QPREF by the mode of the application, DWGPROPS always.
#include "module/module_object.h"

#include "host/app.h"
#include "host/documents.h"
#include "module/dwg_props_cmd.h"

namespace {

const int modeWithoutOptions = 1;

// The interface is not tested for null: the host is required to offer it before it loads the module.
int applicationMode() {
    const Ref<IAppInterior> interior = appService<IAppInterior>();
    return interior->applicationMode();
}

} // namespace

void hostPortedModule::initApp() {
    class _dwgPropsDlg_class_cmd : public DwgPropsCommand {};

    const int mode = applicationMode();
    if (mode != modeWithoutOptions) {
        const OdEdCommandStackPtr stack = odedRegCmds();
        stack->addCommand(&qprefCommand);
    }
    const OdEdCommandStackPtr stack = odedRegCmds();
    stack->addCommand(new _dwgPropsDlg_class_cmd); // the stack's from now on; the module never frees it
}

void hostPortedModule::uninitApp() {
    class _dwgPropsDlg_class_cmd : public DwgPropsCommand {};

    const int mode = applicationMode();
    if (mode != modeWithoutOptions) {
        const OdEdCommandStackPtr stack = odedRegCmds();
        stack->removeCmd(&qprefCommand);
    }
    // A fresh object, not the registered one, and not freed: the stack finds the command by its names. Meant.
    const OdEdCommandStackPtr stack = odedRegCmds();
    stack->removeCmd(new _dwgPropsDlg_class_cmd);
}
