// One transaction around one run of the dialog.
#include "dwgprops/dwg_props_command.h"

#include "dwgprops/current_drawing.h"
#include "dwgprops/dwg_props.h"
#include "host/modal_runner.h"
#include "host/qt_ui_core.h"
#include "host/transaction_guard.h"

namespace {

// Aborts whatever is still open when the command is left, by whatever way; the guard itself does not.
class AbortAtEnd {
public:
    explicit AbortAtEnd(DbTransactionGuard& watched) : guard(watched) {}
    ~AbortAtEnd() { guard.abort(); }
    AbortAtEnd(const AbortAtEnd&) = delete;
    AbortAtEnd& operator=(const AbortAtEnd&) = delete;

private:
    DbTransactionGuard& guard;
};

} // namespace

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
