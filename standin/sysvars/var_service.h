// The system-variable service: application variables kept for the user, drawing variables with each document.
#pragma once

#include "host/documents.h"
#include "standin/sysvars/sysvar_table.h"

#include <functional>

namespace standin {

// The values of the drawing variables of one document. A variable that was never set has its default.
class DrawingVars {
public:
    virtual ~DrawingVars() = default;
    // Values that follow from the document itself (its name, its folder), or null.
    virtual OdResBufPtr ownValue(const QString& /*name*/) { return {}; }
    std::map<QString, OdResBufPtr> values;
};

enum { kVarOk = 5100 };

// Where the values of a drawing come from when a context is given (null: the current document). The result
// may be null when there is no document.
using DrawingVarsLookup = std::function<DrawingVars*(OdRxObject* context)>;

class VarService : public HostVarService {
public:
    VarService(SysVarTable variableTable, DrawingVarsLookup drawingVars);
    // The section that application variables live in; their values are read from it at once.
    void keepIn(Ref<IParam> section);

    // kVarOk with the value, or kVarUnavailable.
    int getVar(const OdString& name, OdResBufPtr* out, OdRxObject* context, int) override;
    // kVarOk, or kVarUnavailable for an unknown or read-only variable and for a value of the wrong kind or
    // outside the limits; the variable then keeps its value.
    int setVar(const OdString& name, OdResBuf* value, OdRxObject* context, int) override;
    void openOptionTree(IParam* tree) override;
    void closeOptionTree(IParam* tree) override;

    const SysVarTable& table() const { return variables; }
    std::function<void(const QString& name)> changed; // after every successful setVar

private:
    std::map<QString, OdResBufPtr>* valuesFor(const SysVarDef& definition, OdRxObject* context);
    void keep(const SysVarDef& definition, const OdResBuf& value);

    SysVarTable variables;
    DrawingVarsLookup drawingVarsOf;
    std::map<QString, OdResBufPtr> applicationValues;
    Ref<IParam> store;
    Ref<IParam> openTree;
};

} // namespace standin
