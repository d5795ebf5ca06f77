// Reads the data file, which maps each alias to its command.
#include "standin/console/aliases.h"

#include <QFile>
#include <yaml-cpp/yaml.h>

namespace standin {

namespace {

QMap<QString, QString> aliasesOf(const YAML::Node& file) {
    if (!file.IsMap())
        throw YAML::Exception(file.Mark(), "a list of \"alias: command\" is needed");
    QMap<QString, QString> result;
    for (const auto& entry : file)
        result[QString::fromStdString(entry.first.as<std::string>()).toUpper()] =
            QString::fromStdString(entry.second.as<std::string>()).toUpper();
    return result;
}

} // namespace

QMap<QString, QString> readAliases(const QString& path, QStringList* problems) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems->append(QStringLiteral("%1: %2").arg(path, file.errorString()));
        return {};
    }
    try {
        return aliasesOf(YAML::Load(file.readAll().toStdString()));
    } catch (const YAML::Exception& problem) {
        problems->append(QStringLiteral("%1:%2: %3")
                             .arg(path)
                             .arg(problem.mark.line + 1)
                             .arg(QString::fromStdString(problem.msg)));
        return {};
    }
}

} // namespace standin
