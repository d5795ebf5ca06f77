// Reads and writes of system variables, and the user's values in the profile.
#include "standin/sysvars/var_service.h"

#include "host/text.h"
#include "host/typed_reads.h"

namespace standin {

namespace {

// An empty text is a value, too.
bool readText(IParam* section, const char* key, OdString& text) {
    CKWVariant value;
    value.vt = kVtWideString;
    if (!section->getValue(key, &value) || value.vt != kVtWideString)
        return false;
    text = static_cast<wchar_t*>(value);
    return true;
}

OdResBufPtr storedValue(const SysVarDef& definition, IParam* section) {
    const QByteArray key = definition.name.toLatin1();
    OdResBufPtr result = OdResBuf::newRb(resBufType(definition.type));
    int whole = 0;
    double real = 0;
    OdString text;
    if (definition.type == VarType::Real && readValue(section, key, &real))
        result->setDouble(real);
    else if (definition.type == VarType::Text && readText(section, key, text))
        result->setString(text);
    else if (definition.type != VarType::Real && isNumber(definition.type) && readValue(section, key, &whole))
        result->setInt32(whole);
    else
        return {};
    return accepts(definition, *result) ? result : OdResBufPtr();
}

} // namespace

VarService::VarService(SysVarTable variableTable, DrawingVarsLookup drawingVars)
    : variables(std::move(variableTable)), drawingVarsOf(std::move(drawingVars)) {
    odDbSetApplicationVariables(this);
}

VarService::~VarService() {
    if (odDbApplicationVariables() == this)
        odDbSetApplicationVariables(nullptr);
}

void VarService::keepIn(Ref<IParam> section) { profileSection = std::move(section); }

std::map<QString, OdResBufPtr>* VarService::valuesFor(const SysVarDef& definition, DrawingVars* drawing) {
    if (definition.scope == VarScope::Application)
        return &applicationValues;
    return drawing ? &drawing->values : nullptr;
}

OdResBufPtr VarService::valueIn(const SysVarDef& definition, DrawingVars* drawing) {
    const auto* values = valuesFor(definition, drawing);
    if (!values)
        return {};
    if (const OdResBufPtr kept = keptValue(definition); !kept.isNull())
        return kept;
    const auto set = values->find(definition.name);
    return (set == values->end() ? definition.defaultValue : set->second)->clone();
}

// Read anew each time: another workbench may have set it, whose value the profile has taken in since.
OdResBufPtr VarService::keptValue(const SysVarDef& definition) const {
    const bool isKept = profileSection && definition.scope == VarScope::Application && !definition.readOnly;
    return isKept ? storedValue(definition, profileSection.get()) : OdResBufPtr();
}

int VarService::getVar(const OdString& name, OdResBufPtr* out, OdRxObject* context, int) {
    const SysVarDef* definition = variables.find(hostqt::qString(name));
    if (!definition)
        return kVarUnavailable;
    DrawingVars* drawing = drawingVarsOf(context);
    OdResBufPtr value;
    if (definition->scope == VarScope::Drawing && drawing)
        value = drawing->valueInDrawing(definition->name);
    value = value.isNull() ? valueIn(*definition, drawing) : converted(*definition, *value);
    if (value.isNull())
        return kVarUnavailable;
    *out = value;
    return kVarOk;
}

int VarService::setVar(const OdString& name, OdResBuf* value, OdRxObject* context, int) {
    const SysVarDef* definition = variables.find(hostqt::qString(name));
    if (!definition || definition->readOnly || !value || !accepts(*definition, *value))
        return kVarUnavailable;
    DrawingVars* drawing = drawingVarsOf(context);
    if (!valuesFor(*definition, drawing))
        return kVarUnavailable;
    store(*definition, converted(*definition, *value), drawing);
    if (changed)
        changed(definition->name);
    return kVarOk;
}

void VarService::store(const SysVarDef& definition, const OdResBufPtr& value, DrawingVars* drawing) {
    if (definition.scope == VarScope::Drawing && drawing->setInDrawing(definition.name, *value))
        return;
    (*valuesFor(definition, drawing))[definition.name] = value;
    keep(definition, *value);
}

// What is set to the value that it has is no change, so that it never gives way to, or stands against, what
// another workbench has changed.
void VarService::keep(const SysVarDef& definition, const OdResBuf& value) {
    if (!profileSection || definition.scope == VarScope::Drawing)
        return;
    const OdResBufPtr kept = keptValue(definition);
    if (valueText(definition, value) ==
        valueText(definition, kept.isNull() ? *definition.defaultValue : *kept))
        return;
    CKWVariant variant;
    if (definition.type == VarType::Text)
        variant = value.getString().c_str();
    else if (definition.type == VarType::Real)
        variant = value.getDouble();
    else
        variant = int{value.getInt32()};
    profileSection->setValue(definition.name.toLatin1(), &variant);
}

OdResBufPtr VarService::getVariable(const OdString& name) {
    const SysVarDef* definition = variables.find(hostqt::qString(name));
    const bool isOurs = definition && definition->scope == VarScope::Application;
    return isOurs ? valueIn(*definition, nullptr) : OdResBufPtr();
}

OdResBufPtr VarService::drawingDefault(const OdString& name) {
    const SysVarDef* definition = variables.find(hostqt::qString(name));
    return definition ? definition->defaultValue->clone() : OdResBufPtr();
}

bool VarService::setVariable(const OdString& name, const OdResBuf* value) {
    const SysVarDef* definition = variables.find(hostqt::qString(name));
    const bool isOurs = definition && definition->scope == VarScope::Application;
    if (!isOurs || !value || !accepts(*definition, *value))
        return false;
    const OdResBufPtr kept = converted(*definition, *value);
    applicationValues[definition->name] = kept;
    keep(*definition, *kept);
    return true;
}

// The tree lives at least as long as its walk.
void VarService::openOptionTree(IParam* tree) { openTree = Ref<IParam>::share(tree); }

void VarService::closeOptionTree(IParam*) { openTree = nullptr; }

} // namespace standin
