// Hands DWGPROPS on to the job that shows the drawing properties.
#include "module/dwg_props_cmd.h"

#include "dwgprops/dwg_props_command.h"
#include "host/documents.h"

const OdString DwgPropsCommand::groupName() const { return OdString(L"dwgPropsDlg_class"); }

const OdString DwgPropsCommand::globalName() const { return OdString(L"DWGPROPS"); }

// As for QPREF: nothing guards setCtx on an exception, and that is meant.
void DwgPropsCommand::execute(OdEdCommandContext* ctx) {
    setCtx(ctx);
    runDwgProps();
    setCtx(nullptr);
}
