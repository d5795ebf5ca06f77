#include "options/window/profile_choice.h"

#include "host/modal_runner.h"
#include "host/qt_ui_core.h"
#include "host/text.h"
#include "options/pages/rows/pref_widget.h"
#include "options/pages/search/searching_line_edit.h"
#include "options/window/preferences.h"

#include <QAction>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using host_qt_ui_core::QHostMessageBox;

namespace {

// What Apply would write, as one text: two that are the same mean that there is nothing to write.
QString valuesOf(const Preferences& dialog) {
    QString all;
    for (QTreeWidgetItemIterator it(dialog.tree); *it; ++it) {
        auto* const item = static_cast<TreeItem*>(*it);
        QPrefWidget* const row = dialog.rowWidgets.value(item);
        const auto* const combo = row ? row->findChild<QComboBox*>() : nullptr;
        all += QStringLiteral("%1|%2|%3|%4|%5|%6|%7\n")
                   .arg(QString::fromLocal8Bit(item->nodeName), item->text(0), QString::number(item->state),
                        QString::number(item->numberValue, 'g', 17), QString::number(item->colorValue),
                        item->textValue, combo ? combo->currentText() : QString());
    }
    return all;
}

} // namespace

ProfileChoice::ProfileChoice(Preferences& preferences, Ref<IProfiles> hostProfiles)
    : QObject(&preferences), dialog(preferences), profiles(std::move(hostProfiles)) {
    buildMenu();
    fill();
    connect(dialog.profileCombo, QOverload<int>::of(&QComboBox::activated), this, &ProfileChoice::choose);
    noteApplied();
}

void ProfileChoice::buildMenu() {
    dialog.profileButton->setMenu(new QMenu(dialog.profileButton));
    dialog.profileButton->setPopupMode(QToolButton::InstantPopup);
    dialog.profileButton->setFocusPolicy(Qt::StrongFocus);
    addToMenu("newProfileAction", tr("&New..."), &ProfileChoice::add);
    addToMenu("copyProfileAction", tr("&Copy..."), &ProfileChoice::copy);
    addToMenu("renameProfileAction", tr("&Rename..."), &ProfileChoice::rename);
    addToMenu("deleteProfileAction", tr("&Delete..."), &ProfileChoice::remove);
    removeAction = dialog.profileButton->menu()->actions().last();
}

void ProfileChoice::addToMenu(const char* objectName, const QString& text, void (ProfileChoice::*action)()) {
    QAction* const entry = dialog.profileButton->menu()->addAction(text);
    entry->setObjectName(QLatin1String(objectName));
    connect(entry, &QAction::triggered, this, action);
}

QString ProfileChoice::current() const { return hostqt::qString(profiles->current()); }

void ProfileChoice::fill() {
    dialog.profileCombo->clear();
    for (const OdString& name : profiles->names())
        dialog.profileCombo->addItem(hostqt::qString(name));
    dialog.currentProfile = current();
    dialog.profileCombo->setCurrentText(dialog.currentProfile);
    removeAction->setEnabled(dialog.profileCombo->count() > 1);
}

void ProfileChoice::noteApplied() { applied = valuesOf(dialog); }

void ProfileChoice::choose(int index) {
    const QString name = dialog.profileCombo->itemText(index);
    if (name != current() && settleChanges(name))
        changeTo(name);
    fill();
}

void ProfileChoice::changeTo(const QString& name) {
    if (!done(profiles->select(name.toStdWString().c_str())))
        return;
    dialog.searchEdit->clear();
    dialog.rebuildTree(true);
    for (TreeItem* item : qAsConst(dialog.expandedItems))
        item->setExpanded(true);
    fill();
    noteApplied();
}

bool ProfileChoice::settleChanges(const QString& next) {
    if (valuesOf(dialog) == applied)
        return true;
    QMessageBox box(QMessageBox::Question, tr("Profiles"),
                    tr("Options of the profile \"%1\" are changed and not applied yet. Apply them before "
                       "changing to \"%2\"?")
                        .arg(current(), next),
                    QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel, &dialog);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Apply);
    const int answer = runModal(box);
    if (answer == QMessageBox::Apply)
        dialog.applyChanges();
    return answer == QMessageBox::Apply || answer == QMessageBox::Discard;
}

QString ProfileChoice::askName(const QString& title, const QString& proposal) {
    QInputDialog input(&dialog);
    input.setWindowTitle(title);
    input.setLabelText(tr("&Name of the profile:"));
    input.setOkButtonText(tr("&OK"));
    input.setCancelButtonText(tr("&Cancel"));
    input.setTextValue(proposal);
    return runModal(input) == QDialog::Accepted ? input.textValue().trimmed() : QString();
}

bool ProfileChoice::done(const OdString& refusal) {
    const QString reason = hostqt::qString(refusal);
    if (!reason.isEmpty())
        QHostMessageBox::critical(tr("Profiles"), reason, EV_MB_OK);
    return reason.isEmpty();
}

void ProfileChoice::add() {
    const QString name = askName(tr("New Profile"), QString());
    if (name.isEmpty() || !settleChanges(name) || !done(profiles->create(name.toStdWString().c_str())))
        return;
    changeTo(name);
}

void ProfileChoice::copy() {
    const QString name = askName(tr("Copy Profile"), tr("Copy of %1").arg(current()));
    if (name.isEmpty() || !settleChanges(name) || !done(profiles->copyCurrent(name.toStdWString().c_str())))
        return;
    changeTo(name);
}

void ProfileChoice::rename() {
    const QString name = askName(tr("Rename Profile"), current());
    if (!name.isEmpty() && name != current() && done(profiles->renameCurrent(name.toStdWString().c_str())))
        fill();
}

// The next one comes in its place; what is changed and not applied goes with it.
void ProfileChoice::remove() {
    const QString name = current();
    const QString next = dialog.profileCombo->itemText(dialog.profileCombo->currentIndex() == 0 ? 1 : 0);
    const QString question = tr("Delete the profile \"%1\" with all its options? \"%2\" comes in its place.");
    if (QHostMessageBox::question(tr("Profiles"), question.arg(name, next), EV_MB_YES | EV_MB_NO) !=
            EV_MB_YES ||
        !settleChanges(next))
        return;
    changeTo(next);
    if (current() == next)
        done(profiles->remove(name.toStdWString().c_str()));
    fill();
}

#include "moc_profile_choice.cpp"
