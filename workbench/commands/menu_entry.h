// Where commands stand in the menus and on the tool bar. Whoever adds a command says it there.
#pragma once

#include <QKeySequence>
#include <QString>

namespace workbench {

enum class Menu { File, Edit, View, Insert, Groups, Tools, Drawings, Help }; // in the order of the menu bar

struct MenuEntry {
    Menu menu;
    QString text;
    QString command; // what is typed for it; further lines answer its prompts
    QString icon{};  // base name of a picture of the present theme; with one it stands on the tool bar, too
    QKeySequence shortcut{};
    bool startsSection = false; // a line parts it from the entry above it
};

class MenuSink {
public:
    virtual ~MenuSink() = default;
    // Behind the entries that its menu has. A menu without entries isn't shown.
    virtual void addEntry(const MenuEntry& entry) = 0;
};

} // namespace workbench
