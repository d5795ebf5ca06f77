// What the commands about drawings ask the user: files and unsaved changes, by dialogs or on the console.
#pragma once

#include <QStringList>
#include <optional>

namespace standin {
class Console;
}

namespace workbench {

enum class Unsaved { Save, Discard, Cancel };

class FileQuestions {
public:
    // `consoleOnly`: nobody is there to answer a dialog.
    FileQuestions(standin::Console& console, bool consoleOnly) : io(console), headless(consoleOnly) {}

    // Absolute paths; nothing when the user cancels. A dialog starts in `folder`, and a typed name is looked
    // for there as well.
    std::optional<QString> fileToOpen(const QString& folder) const;
    // `suggested` is what Enter takes. A file that exists is only given back when it may be replaced; the one
    // named `own` may be.
    std::optional<QString> fileToSave(const QString& suggested, const QString& own) const;
    // Drawings to attach, as they are typed on the console, none when the user gives up; nothing when dialogs
    // are to ask. A typed ~ calls for the dialogs, too.
    std::optional<QStringList> filesToAttach(const QString& folder) const;
    Unsaved whatOfChanges(const QString& drawing) const;
    // Asks before the work of another program is written over.
    bool mayOverwriteChanged(const QString& path) const;
    // Asks for a newer version of a drawing whose version has no place for what it holds. Says on the
    // console, too, what would be left out.
    bool mayMakeNewer(const QString& drawing, const QStringList& leftOut) const;
    // In a box, where boxes are shown: the console may be out of sight.
    void tellNotSaved(const QString& drawing, const QString& reason) const;
    static bool dialogsAreOff(); // FILEDIA is 0
    bool asksOnConsole() const;  // that, or headless

private:
    Unsaved whatOfChangesByDialog(const QString& drawing) const;
    std::optional<QString> typedName(const QString& prompt) const;
    std::optional<QString> chosenToSave(const QString& chosen, const QString& own) const;
    bool mayReplace(const QString& path) const;
    bool isYesOnConsole(const QString& prompt) const;

    standin::Console& io;
    const bool headless;
};

} // namespace workbench
