// The menu of a right click. The group commands look at the selection themselves, once the menu is up.
#include "workbench/commands/canvas_menu.h"

#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "workbench/canvas/canvas.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/group_commands.h"

#include <QCoreApplication>
#include <QMenu>

using namespace standin;

namespace workbench {

namespace {

QString translated(const char* text) { return QCoreApplication::translate("CanvasMenu", text); }

struct Entry {
    const char* name;
    const char* text;
    const char* lines; // what is typed
    bool startsSection;
};

const Entry entries[] = {
    {"zoomExtentsMenuAction", QT_TRANSLATE_NOOP("CanvasMenu", "Zoom to &everything"), "ZOOM\nExtents", true},
    {"zoomWindowMenuAction", QT_TRANSLATE_NOOP("CanvasMenu", "Zoom to a &window"), "ZOOM\nWindow", false},
    {"zoomPreviousMenuAction", QT_TRANSLATE_NOOP("CanvasMenu", "&Previous view"), "ZOOM\nPrevious", false},
    {"selectAllMenuAction", QT_TRANSLATE_NOOP("CanvasMenu", "Select &all"), "SELECT\nAll\n", true},
    {"listMenuAction", QT_TRANSLATE_NOOP("CanvasMenu", "P&roperties of what is selected"), "LIST", false},
    {"dwgpropsMenuAction", QT_TRANSLATE_NOOP("CanvasMenu", "&Drawing properties..."), "DWGPROPS", false},
};

class CanvasMenu : public QMenu {
public:
    CanvasMenu(const CommandScope& scope, const LoadedModule& module)
        : QMenu(&scope.canvas), console(scope.console) {
        setObjectName(QStringLiteral("canvasMenu"));
        setAttribute(Qt::WA_DeleteOnClose);
        if (const QString last = scope.loop.lastCommand(); !last.isEmpty())
            add(*this, translated("Repeat &%1").arg(last), QStringLiteral("repeatMenuAction"), last);
        for (const Entry& entry : entries) {
            if (entry.startsSection)
                addSeparator();
            add(*this, translated(entry.text), QLatin1String(entry.name), QLatin1String(entry.lines));
        }
        addSeparator();
        addGroups(module);
    }
    void showAt(const QPoint& place) {
        popup(place);
        for (const auto& [action, command] : groups)
            action->setEnabled(command && command->enableQuery() != 0);
    }

private:
    QAction* add(QMenu& menu, const QString& text, const QString& name, const QString& lines) {
        QAction* action = menu.addAction(text);
        action->setObjectName(name);
        connect(action, &QAction::triggered, &console, [io = &console, lines] {
            for (const QString& line : lines.split(QLatin1Char('\n')))
                io->enterLine(line);
        });
        return action;
    }
    void addGroups(const LoadedModule& module) {
        QMenu* menu = addMenu(translated("&Groups"));
        menu->setObjectName(QStringLiteral("groupMenu"));
        for (const OfferedGroupCommand& offered : offeredGroupCommands(module)) {
            if (offered.startsSection)
                menu->addSeparator();
            const QString name = offered.name.toLower() + QStringLiteral("MenuAction");
            groups.emplace_back(add(*menu, offered.entry, name, offered.name), offered.command);
        }
    }

    Console& console;
    std::vector<std::pair<QAction*, Ref<ICmdProcess>>> groups;
};

} // namespace

void addCanvasMenu(const CommandScope& scope, const LoadedModule& module) {
    QObject::connect(
        &scope.canvas, &Canvas::menuWanted, &scope.canvas,
        [scope, &module](const QPoint& place) { (new CanvasMenu(scope, module))->showAt(place); });
}

} // namespace workbench
