// One transaction around one run of the dialog.
#include "dwgprops/dwg_props_command.h"

#include "dwgprops/current_drawing.h"
#include "dwgprops/dwg_props.h"
#include "host/modal_runner.h"
#include "host/qt_ui_core.h"
#include "host/transaction_guard.h"

void runDwgProps() {
    DbTransactionGuard guard(currentDrawing());
    guard.begin();
    const AbortAtEnd abortAtEnd(guard);
    const host_qt_ui_core::ParentWrapper parent = host_qt_ui_core::parentForDialog();
    dwgProps dialog(parent);
    if (runModal(dialog) != 0)
        guard.commit();
    else
        guard.abort();
}
