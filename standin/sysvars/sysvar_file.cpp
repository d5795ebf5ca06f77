// Reading the table of system variables from its data file.
#include "standin/sysvars/sysvar_table.h"

#include "host/text.h"

#include <QFile>
#include <yaml-cpp/yaml.h>

namespace standin {

namespace {

[[noreturn]] void refuse(const YAML::Node& node, const std::string& reason) {
    throw YAML::Exception(node.Mark(), reason);
}

VarType typeOf(const YAML::Node& entry) {
    static const std::map<std::string, VarType> types = {
        {"bool", VarType::Bool},   {"int8", VarType::Int8}, {"int16", VarType::Int16},
        {"int32", VarType::Int32}, {"real", VarType::Real}, {"string", VarType::Text}};
    const auto found = types.find(entry["type"].as<std::string>(""));
    if (found == types.end())
        refuse(entry, "the type is none of bool, int8, int16, int32, real, string");
    return found->second;
}

VarScope scopeOf(const YAML::Node& entry) {
    const auto scope = entry["scope"].as<std::string>("");
    if (scope != "drawing" && scope != "application")
        refuse(entry, "the scope is neither drawing nor application");
    return scope == "drawing" ? VarScope::Drawing : VarScope::Application;
}

std::optional<double> limit(const YAML::Node& entry, const char* key) {
    const YAML::Node value = entry[key];
    return value ? std::optional<double>(value.as<double>()) : std::nullopt;
}

SysVarDef definitionOf(const std::string& name, const YAML::Node& entry) {
    SysVarDef result;
    result.name = QString::fromStdString(name).toUpper();
    result.type = typeOf(entry);
    result.scope = scopeOf(entry);
    result.minimum = limit(entry, "min");
    result.maximum = limit(entry, "max");
    result.readOnly = entry["readonly"].as<bool>(false);
    result.description = QString::fromStdString(entry["description"].as<std::string>(""));
    result.defaultValue = valueFromText(result, QString::fromStdString(entry["default"].as<std::string>("")));
    if (result.defaultValue.isNull() || !accepts(result, *result.defaultValue))
        refuse(entry, "the default is no value of the variable");
    return result;
}

QString problemText(const QString& path, const YAML::Exception& problem) {
    return QStringLiteral("%1:%2:%3: %4")
        .arg(path)
        .arg(problem.mark.line + 1)
        .arg(problem.mark.column + 1)
        .arg(QString::fromStdString(problem.msg));
}

} // namespace

SysVarTable SysVarTable::fromFile(const QString& path, QStringList* problems) {
    SysVarTable result;
    YAML::Node variables;
    try {
        variables = YAML::LoadFile(QFile::encodeName(path).toStdString())["variables"];
    } catch (const YAML::Exception& problem) {
        problems->append(problemText(path, problem));
    }
    for (const auto& entry : variables)
        try {
            result.add(definitionOf(entry.first.as<std::string>(), entry.second));
        } catch (const YAML::Exception& problem) {
            problems->append(problemText(path, problem));
        }
    return result;
}

} // namespace standin
