// The system-variable service: application variables kept for the user, drawing variables with each document.
#pragma once

#include "host/documents.h"
#include "sdk/db/application_variables.h"
#include "standin/sysvars/sysvar_table.h"

#include <functional>

namespace standin {

// The drawing variables of one document. What the drawing itself doesn't hold stands in `values`; a variable
// that was never set has its default.
class DrawingVars {
public:
    virtual ~DrawingVars() = default;
    virtual OdResBufPtr valueInDrawing(const QString& /*name*/) { return {}; } // null when it holds none
    virtual bool setInDrawing(const QString& /*name*/, const OdResBuf& /*value*/) { return false; }
    std::map<QString, OdResBufPtr> values;
};

enum { kVarOk = 5100 };

// Where the values of a drawing come from when a context is given (null: the current document). The result
// may be null when there is no document.
using DrawingVarsLookup = std::function<DrawingVars*(OdRxObject* context)>;

class VarService : public HostVarService, public OdDbApplicationVariables {
public:
    // Serves the drawings too for what they don't hold by themselves, as long as it lives.
    VarService(SysVarTable variableTable, DrawingVarsLookup drawingVars);
    ~VarService() override;
    // The section that application variables live in: what stands there counts, also what another process
    // has written there meanwhile.
    void keepIn(Ref<IParam> section);

    // kVarOk with the value, or kVarUnavailable.
    int getVar(const OdString& name, OdResBufPtr* out, OdRxObject* context, int) override;
    // kVarOk, or kVarUnavailable for an unknown or read-only variable and for a value of the wrong kind or
    // outside the limits; the variable then keeps its value.
    int setVar(const OdString& name, OdResBuf* value, OdRxObject* context, int) override;
    void openOptionTree(IParam* tree) override;
    void closeOptionTree(IParam* tree) override;

    // Asked by a drawing, which holds the variables of drawings itself.
    OdResBufPtr getVariable(const OdString& name) override;
    OdResBufPtr drawingDefault(const OdString& name) override;
    bool setVariable(const OdString& name, const OdResBuf* value) override;

    const SysVarTable& table() const { return variables; }
    std::function<void(const QString& name)> changed; // after every successful setVar

private:
    std::map<QString, OdResBufPtr>* valuesFor(const SysVarDef& definition, DrawingVars* drawing);
    OdResBufPtr valueIn(const SysVarDef& definition, DrawingVars* drawing);
    OdResBufPtr keptValue(const SysVarDef& definition) const; // null when the profile holds none
    void store(const SysVarDef& definition, const OdResBufPtr& value, DrawingVars* drawing);
    void keep(const SysVarDef& definition, const OdResBuf& value);

    SysVarTable variables;
    DrawingVarsLookup drawingVarsOf;
    std::map<QString, OdResBufPtr> applicationValues; // serve without a section
    Ref<IParam> profileSection;
    Ref<IParam> openTree;
};

} // namespace standin
