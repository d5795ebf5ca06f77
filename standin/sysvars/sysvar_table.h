// The table of system variables: what each one is, as the data file tells it.
#pragma once

#include "sdk/rx/res_buf.h"

#include <QString>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

namespace standin {

enum class VarType { Bool, Int8, Int16, Int32, Real, Text };
enum class VarScope { Drawing, Application };

struct SysVarDef {
    QString name; // in capitals
    VarType type = VarType::Int16;
    VarScope scope = VarScope::Application;
    OdResBufPtr defaultValue;
    std::optional<double> minimum, maximum; // of numbers; the width of the type bounds them in any case
    bool readOnly = false;
    QString description;
};

class SysVarTable {
public:
    // Reads the data file. An entry that can't be read is left out and told in `problems`, with file and
    // line.
    static SysVarTable fromFile(const QString& path, QStringList* problems);
    const SysVarDef* find(const QString& name) const; // in any letter case; null when unknown
    const std::vector<SysVarDef>& all() const { return definitions; }
    void add(SysVarDef definition);

private:
    std::vector<SysVarDef> definitions;
    std::map<QString, std::size_t> byName;
};

// The group code that a buffer of this type carries.
int resBufType(VarType type);
bool isNumber(VarType type);
// True when `value` suits the type and lies within the limits of `definition`.
bool accepts(const SysVarDef& definition, const OdResBuf& value);
// A buffer of the variable's own type with the value of `source`.
OdResBufPtr converted(const SysVarDef& definition, const OdResBuf& source);
// The value as a person reads and types it.
QString valueText(const SysVarDef& definition, const OdResBuf& value);
// A buffer from typed text; null when the text is no value of the type.
OdResBufPtr valueFromText(const SysVarDef& definition, const QString& text);

} // namespace standin
