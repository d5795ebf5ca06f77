// The row with a directory, which is asked for again when it does not exist.
#include "host/qt_ui_core.h"
#include "host/text.h"
#include "host/tool_tip.h"
#include "options/kinds/all_kinds.h"
#include "options/kinds/text_kind.h"
#include "options/pages/rows/line_edit.h"
#include "options/store/expand_environment.h"
#include "options/store/option_values.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <memory>

using host_qt_ui_core::QHostMessageBox;

namespace {

class EditDirKind final : public TextKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const override;
};

const char kLastValidPath[] = "lastValidPath";

QString lastValidPath(const LineEdit* edit) { return edit->property(kLastValidPath).toString(); }

void takeDirectory(LineEdit* edit, const QString& chosen) {
    const QString directory = QDir::toNativeSeparators(chosen);
    showText(edit, directory);
    edit->setProperty(kLastValidPath, directory);
}

QString askDirectory(OptionDialog& options, const QString& start) {
    return QFileDialog::getExistingDirectory(&options.asDialog(), QString(), start,
                                             QFileDialog::ShowDirsOnly);
}

// The item's value isn't touched: it follows when the edit is finished, which is meant.
void pickDirectory(OptionDialog& options, LineEdit* edit, TreeItem* item) {
    const QString typed = QDir::toNativeSeparators(edit->text().trimmed());
    const bool usable = !typed.isEmpty() && QDir().exists(typed);
    const QString chosen = askDirectory(options, usable ? typed : lastValidPath(edit));
    if (chosen.isEmpty())
        return;
    takeDirectory(edit, chosen);
    focusPicked(edit, item);
}

// The nearest directory above `typed` that exists, as far as the walk up gets.
QString nearestDirectory(const QString& typed) {
    QString walk = typed;
    QDir directory(typed);
    while (!walk.isEmpty() && !directory.exists()) {
        const QString before = directory.absolutePath();
        directory.cdUp(); // stays where it is when the directory above doesn't exist either
        if (directory.absolutePath() == before)
            break;
        walk = directory.absolutePath();
    }
    return walk;
}

QString startAbove(const QString& typed) {
    const QString nearest = nearestDirectory(typed);
    if (!nearest.isEmpty() && QDir().exists(nearest))
        return nearest;
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
}

bool wantsAnother(OptionDialog& options, const QString& typed) {
    const QString text =
        QCoreApplication::translate("Preferences",
                                    "Path \"%1\" does not exist. Do you want to specify another value?")
            .arg(typed);
    return QHostMessageBox::question(options.asDialog().windowTitle(), text, EV_MB_YES | EV_MB_NO) ==
           EV_MB_YES;
}

void replaceMissing(OptionDialog& options, LineEdit* edit, const QString& typed) {
    const QString last = lastValidPath(edit);
    const QString chosen =
        wantsAnother(options, typed) ? askDirectory(options, startAbove(typed)) : QString();
    if (chosen.isEmpty())
        showText(edit, last);
    else
        takeDirectory(edit, chosen);
}

// Blanks count as no path: they are accepted, and kept as they stand. That is meant.
void validateDirectory(OptionDialog& options, LineEdit* edit, TreeItem* item) {
    const QString typed = edit->text().trimmed();
    if (!typed.isEmpty()) {
        if (QDir().exists(typed))
            edit->setProperty(kLastValidPath, typed);
        else
            replaceMissing(options, edit, typed);
    }
    item->textValue = edit->text();
}

void connectDirectory(OptionDialog& options, LineEdit* edit, QAction* browse, TreeItem* item) {
    QObject::connect(browse, &QAction::triggered, edit,
                     [&options, edit, item] { pickDirectory(options, edit, item); });
    QObject::connect(edit, &QLineEdit::editingFinished, edit,
                     [&options, edit, item] { validateDirectory(options, edit, item); });
    QObject::connect(edit, &QLineEdit::textChanged, edit,
                     [edit](const QString& text) { edit->setToolTip(hostqt::plainToolTip(text)); });
}

// What the value stands for is what Apply writes: the store loses the percent signs. That is meant.
void EditDirKind::build(OptionDialog& options, TreeItem* item, IParam* node, int) const {
    const QString text = expandEnvironment(hostqt::qString(textOrDefault(node, options.parentNode(item))));
    auto owned = std::make_unique<LineEdit>(item, options.tree, text, nullptr);
    LineEdit* const edit = owned.get();
    nameEditor(edit, item);
    edit->setCursorPosition(0);
    edit->setToolTip(hostqt::plainToolTip(text));
    edit->setProperty(kLastValidPath, text);
    item->textValue = text;
    item->buttonMask = kMaskModify;
    auto* browse = new QAction(&options.asDialog());
    addBrowseAction(options, edit, browse);
    connectDirectory(options, edit, browse, item);
    options.makeRow(1, item, owned.release(), false, 1);
}

} // namespace

const RowKind& editDirKind() {
    static const EditDirKind kind;
    return kind;
}
