// SETVAR: reads, changes and lists system variables.
#include "workbench/commands/commands.h"

#include "host/text.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"

#include <QCoreApplication>
#include <QRegularExpression>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("VariableCommands", text); }

int ask(Console& console, const QString& prompt, const wchar_t* keywords, int flags, QString* answer) {
    OdString text;
    const int result = console.getInput(prompt.toStdWString().c_str(), keywords, flags, &text, 0);
    *answer = hostqt::qString(text);
    return result;
}

// Empty when the variable can't be read, as a drawing's without a drawing.
QString currentText(VarService& variables, const SysVarDef& definition) {
    OdResBufPtr value;
    const OdString name = hostqt::odString(definition.name);
    if (variables.getVar(name, &value, nullptr, 0) == kVarUnavailable)
        return {};
    const QString text = valueText(definition, *value);
    return definition.type == VarType::Text ? QLatin1Char('"') + text + QLatin1Char('"') : text;
}

QString limitsText(const SysVarDef& definition) {
    if (!definition.minimum || !definition.maximum)
        return tr("The value isn't one of this variable.");
    return tr("Enter a value from %1 to %2.").arg(*definition.minimum).arg(*definition.maximum);
}

bool setFromText(VarService& variables, const SysVarDef& definition, const QString& text) {
    const OdResBufPtr value = valueFromText(definition, text);
    return !value.isNull() &&
           variables.setVar(hostqt::odString(definition.name), value.get(), nullptr, 0) != kVarUnavailable;
}

// A text that is to be empty is answered with a point.
QString answeredText(const SysVarDef& definition, const QString& answer) {
    return definition.type == VarType::Text && answer == QLatin1String(".") ? QString() : answer;
}

void askNewValue(Console& console, VarService& variables, const SysVarDef& definition) {
    const QString current = currentText(variables, definition);
    console.print(definition.description);
    if (current.isEmpty())
        return console.print(tr("No drawing is open."));
    if (definition.readOnly)
        return console.print(tr("%1 = %2 (read only)").arg(definition.name, current));
    const QString prompt = tr("Enter new value for %1 <%2>:").arg(definition.name, current);
    QString answer;
    while (ask(console, prompt, nullptr, definition.type == VarType::Text ? 3 : 2, &answer) == kInputTyped) {
        if (setFromText(variables, definition, answeredText(definition, answer)))
            return;
        console.print(limitsText(definition));
    }
}

void listVariables(Console& console, VarService& variables) {
    QString pattern;
    const int result = ask(console, tr("Enter variable names to list <*>:"), nullptr, 2, &pattern);
    if (result == kInputCancelled)
        return;
    const QString wildcard = pattern.isEmpty() ? QStringLiteral("*") : pattern.toUpper();
    const QRegularExpression names(QRegularExpression::wildcardToRegularExpression(wildcard));
    for (const SysVarDef& definition : variables.table().all())
        if (names.match(definition.name).hasMatch())
            console.print(definition.name.leftJustified(21) + currentText(variables, definition) +
                          (definition.readOnly ? tr(" (read only)") : QString()));
}

void setVariable(Console& console, VarService& variables) {
    QString name;
    const int result = ask(console, tr("Enter variable name or [%s]:"), L"? _ ?", 2, &name);
    if (result == kInputKeyword)
        return listVariables(console, variables);
    if (result != kInputTyped)
        return;
    if (const SysVarDef* definition = variables.table().find(name))
        return askNewValue(console, variables, *definition);
    console.print(tr("There is no variable %1. SETVAR with ? lists them.").arg(name.toUpper()));
}

} // namespace

void addVariableCommands(const CommandScope& scope) {
    Console& console = scope.console;
    VarService& variables = scope.documents.variables();
    scope.loop.add({"SETVAR", tr("Shows and changes a system variable; its name alone does the same."),
                    [&console, &variables] { setVariable(console, variables); }});
    scope.loop.otherwise = [&console, &variables](const QString& line) {
        const SysVarDef* definition = variables.table().find(line);
        if (definition)
            askNewValue(console, variables, *definition);
        return definition != nullptr;
    };
}

} // namespace workbench
