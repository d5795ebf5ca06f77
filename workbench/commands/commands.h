// The workbench's own commands.
#pragma once

class QString;

namespace standin {
class CommandLoop;
class Console;
class DocumentManager;
class StyleManager;
} // namespace standin

namespace workbench {

// What the commands work on.
struct CommandScope {
    standin::Console& console;
    standin::CommandLoop& loop;
    standin::DocumentManager& documents;
    standin::StyleManager& styles;
};

void addProgramCommands(const CommandScope& scope);  // QUIT, HELP, THEME
void addDrawingCommands(const CommandScope& scope);  // NEW, CLOSE, DRAWINGS
void addVariableCommands(const CommandScope& scope); // SETVAR, and each variable by its own name

} // namespace workbench
