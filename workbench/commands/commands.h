// The workbench's own commands.
#pragma once

#include "workbench/commands/menu_entry.h"

#include <functional>

namespace standin {
class CommandLoop;
class Console;
class Document;
class DocumentManager;
class StyleManager;
} // namespace standin

namespace workbench {

class Canvas;
class FileQuestions;

// What the commands work on.
struct CommandScope {
    standin::Console& console;
    standin::CommandLoop& loop;
    standin::DocumentManager& documents;
    standin::StyleManager& styles;
    const FileQuestions& files;
    Canvas& canvas;
    MenuSink& menus;
};

void addProgramCommands(const CommandScope& scope);  // QUIT, THEME
void addDrawingCommands(const CommandScope& scope);  // NEW, OPEN, SAVE, SAVEAS, CLOSE, DRAWINGS
void addEditCommands(const CommandScope& scope);     // UNDO, REDO, SELECT, LIST
void addViewCommands(const CommandScope& scope);     // ZOOM
void addPlugInEntries(MenuSink& menus);              // those that the plug-in brings
void addVariableCommands(const CommandScope& scope); // SETVAR, and each variable by its own name

// A command that needs a drawing; without one it only says so.
std::function<void()> withDrawing(const CommandScope& scope, void (*command)(const CommandScope&));
// Of the current drawing; empty while that was never saved.
QString folderOfCurrent(const standin::DocumentManager& documents);

} // namespace workbench
