// The line edits of plain text and of a directory.
#include "options/window/preferences.h"

#include "host/qt_ui_core.h"
#include "host/text.h"
#include "host/tool_tip.h"
#include "options/kinds/editor_parts.h"
#include "options/pages/rows/line_edit.h"
#include "options/store/expand_environment.h"
#include "options/store/option_values.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <memory>

using host_qt_ui_core::QHostMessageBox;

namespace {

const char kLastValidPath[] = "lastValidPath";

QString lastValidPath(const LineEdit* edit) { return edit->property(kLastValidPath).toString(); }

void takeDirectory(LineEdit* edit, const QString& chosen) {
    const QString directory = QDir::toNativeSeparators(chosen);
    showText(edit, directory);
    edit->setProperty(kLastValidPath, directory);
}

QString askDirectory(Preferences& preferences, const QString& start) {
    return QFileDialog::getExistingDirectory(&preferences, QString(), start, QFileDialog::ShowDirsOnly);
}

// The item's value isn't touched: it follows when the edit is finished, which is meant.
void pickDirectory(Preferences& preferences, LineEdit* edit, TreeItem* item) {
    const QString typed = QDir::toNativeSeparators(edit->text().trimmed());
    const bool usable = !typed.isEmpty() && QDir().exists(typed);
    const QString chosen = askDirectory(preferences, usable ? typed : lastValidPath(edit));
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

bool wantsAnother(Preferences& preferences, const QString& typed) {
    const QString text =
        Preferences::tr("Path \"%1\" does not exist. Do you want to specify another value?").arg(typed);
    return QHostMessageBox::question(preferences.windowTitle(), text, EV_MB_YES | EV_MB_NO) == EV_MB_YES;
}

void replaceMissing(Preferences& preferences, LineEdit* edit, const QString& typed) {
    const QString last = lastValidPath(edit);
    const QString chosen =
        wantsAnother(preferences, typed) ? askDirectory(preferences, startAbove(typed)) : QString();
    if (chosen.isEmpty())
        showText(edit, last);
    else
        takeDirectory(edit, chosen);
}

// Blanks count as no path: they are accepted, and kept as they stand. That is meant.
void validateDirectory(Preferences& preferences, LineEdit* edit, TreeItem* item) {
    const QString typed = edit->text().trimmed();
    if (!typed.isEmpty()) {
        if (QDir().exists(typed))
            edit->setProperty(kLastValidPath, typed);
        else
            replaceMissing(preferences, edit, typed);
    }
    item->textValue = edit->text();
}

void connectDirectory(Preferences& preferences, LineEdit* edit, QAction* browse, TreeItem* item) {
    QObject::connect(browse, &QAction::triggered, edit,
                     [&preferences, edit, item] { pickDirectory(preferences, edit, item); });
    QObject::connect(edit, &QLineEdit::editingFinished, edit,
                     [&preferences, edit, item] { validateDirectory(preferences, edit, item); });
    QObject::connect(edit, &QLineEdit::textChanged, edit,
                     [edit](const QString& text) { edit->setToolTip(hostqt::plainToolTip(text)); });
}

} // namespace

void Preferences::buildEdit(TreeItem* item, IParam* node) {
    const QString value = hostqt::qString(textOrDefault(node, parentNode(item))).trimmed();
    auto* edit = new LineEdit(item, tree, value, nullptr);
    nameEditor(edit, item);
    item->textValue = value;
    item->buttonMask = kMaskModify;
    edit->setCursorPosition(0);
    edit->setToolTip(hostqt::plainToolTip(value));
    makeRow(1, item, edit, false, 1);
    connect(edit, &QLineEdit::textChanged, edit, [edit, item](const QString& text) {
        item->textValue = text.trimmed();
        edit->setToolTip(hostqt::plainToolTip(item->textValue));
    });
}

// What the value stands for is what Apply writes: the store loses the percent signs. That is meant.
void Preferences::buildDirEdit(TreeItem* item, IParam* node) {
    const QString text = expandEnvironment(hostqt::qString(textOrDefault(node, parentNode(item))));
    auto owned = std::make_unique<LineEdit>(item, tree, text, nullptr);
    LineEdit* const edit = owned.get();
    nameEditor(edit, item);
    edit->setCursorPosition(0);
    edit->setToolTip(hostqt::plainToolTip(text));
    edit->setProperty(kLastValidPath, text);
    item->textValue = text;
    item->buttonMask = kMaskModify;
    auto* browse = new QAction(this);
    addBrowseAction(*this, edit, browse);
    connectDirectory(*this, edit, browse, item);
    makeRow(1, item, owned.release(), false, 1);
}
