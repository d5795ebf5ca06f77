// Reads and writes of system variables, and the user's values in the profile.
#include "standin/sysvars/var_service.h"

#include "host/text.h"
#include "host/typed_reads.h"

namespace standin {

namespace {

OdResBufPtr storedValue(const SysVarDef& definition, IParam* section) {
    const QByteArray key = definition.name.toLatin1();
    OdResBufPtr result = OdResBuf::newRb(resBufType(definition.type));
    int whole = 0;
    double real = 0;
    CXStringW text;
    if (definition.type == VarType::Real && readValue(section, key, &real))
        result->setDouble(real);
    else if (definition.type == VarType::Text && readValue(section, key, &text))
        result->setString(hostqt::odString(text));
    else if (definition.type != VarType::Real && isNumber(definition.type) && readValue(section, key, &whole))
        result->setInt32(whole);
    else
        return {};
    return accepts(definition, *result) ? result : OdResBufPtr();
}

} // namespace

VarService::VarService(SysVarTable variableTable, DrawingVarsLookup drawingVars)
    : variables(std::move(variableTable)), drawingVarsOf(std::move(drawingVars)) {}

void VarService::keepIn(Ref<IParam> section) {
    store = std::move(section);
    applicationValues.clear();
    for (const SysVarDef& definition : variables.all())
        if (definition.scope == VarScope::Application && !definition.readOnly)
            if (const OdResBufPtr value = storedValue(definition, store.get()))
                applicationValues[definition.name] = value;
}

std::map<QString, OdResBufPtr>* VarService::valuesFor(const SysVarDef& definition, OdRxObject* context) {
    if (definition.scope == VarScope::Application)
        return &applicationValues;
    DrawingVars* drawing = drawingVarsOf ? drawingVarsOf(context) : nullptr;
    return drawing ? &drawing->values : nullptr;
}

int VarService::getVar(const OdString& name, OdResBufPtr* out, OdRxObject* context, int) {
    const SysVarDef* definition = variables.find(hostqt::qString(name));
    auto* values = definition ? valuesFor(*definition, context) : nullptr;
    if (!values)
        return kVarUnavailable;
    OdResBufPtr value;
    if (definition->scope == VarScope::Drawing)
        value = drawingVarsOf(context)->ownValue(definition->name);
    const auto set = values->find(definition->name);
    if (value.isNull())
        value = set == values->end() ? definition->defaultValue : set->second;
    *out = value->clone();
    return kVarOk;
}

int VarService::setVar(const OdString& name, OdResBuf* value, OdRxObject* context, int) {
    const SysVarDef* definition = variables.find(hostqt::qString(name));
    if (!definition || definition->readOnly || !value || !accepts(*definition, *value))
        return kVarUnavailable;
    auto* values = valuesFor(*definition, context);
    if (!values)
        return kVarUnavailable;
    const OdResBufPtr kept = converted(*definition, *value);
    (*values)[definition->name] = kept;
    keep(*definition, *kept);
    if (changed)
        changed(definition->name);
    return kVarOk;
}

void VarService::keep(const SysVarDef& definition, const OdResBuf& value) {
    if (!store || definition.scope == VarScope::Drawing)
        return;
    CKWVariant variant;
    if (definition.type == VarType::Text)
        variant = value.getString().c_str();
    else if (definition.type == VarType::Real)
        variant = value.getDouble();
    else
        variant = int{value.getInt32()};
    store->setValue(definition.name.toLatin1(), &variant);
}

// The tree lives at least as long as its walk.
void VarService::openOptionTree(IParam* tree) { openTree = Ref<IParam>::share(tree); }

void VarService::closeOptionTree(IParam*) { openTree = nullptr; }

} // namespace standin
