// The controls of the dialog "Object Grouping" and their places.
#include "groups/dialog_parts.h"
#include "groups/group_dlg.h"
#include "host/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

using group_dialogs::named;

namespace {

// Rows close together, with next to no room above and below them.
void packRows(QLayout& layout, int vertically) {
    group_dialogs::tighten(layout);
    const QMargins margins = layout.contentsMargins();
    layout.setContentsMargins(margins.left(), vertically, margins.right(), vertically);
    layout.setSpacing(1);
}

QLabel* labelFor(QLineEdit* edit, const QString& text, QWidget* parent) {
    auto* const label = new QLabel(text + QLatin1Char(':'), parent);
    label->setBuddy(edit);
    return label;
}

} // namespace

void CGroupDlg::build() {
    groupTable = named(new QTableWidget(this), "groupTable");
    group_dialogs::setUpTable(*groupTable, {QDialog::tr("Group name"), QDialog::tr("Selectable")});
    groupTable->setAccessibleName(QDialog::tr("Group name"));
    buildIdentification();
    buildButtons();
    if (guided) {
        buildFilter();
        makeRoomForReasons();
    }
    flatten();
    nameEdit->setEnabled(!data->unnamed);
}

void CGroupDlg::buildIdentification() {
    nameEdit = named(new QLineEdit(this), "nameEdit");
    descriptionEdit = named(new QLineEdit(this), "descriptionEdit");
    for (QLineEdit* const edit : {nameEdit, descriptionEdit})
        edit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    findNameButton = named(new QPushButton(QDialog::tr("&Find Name <"), this), "findNameButton");
    highlightCheck = named(new QCheckBox(QDialog::tr("Highlight"), this), "highlightCheck");
    highlightCheck->setChecked(data->highlight);
    includeUnnamedCheck = named(new QCheckBox(QDialog::tr("&Include Unnamed"), this), "includeUnnamedCheck");
    includeUnnamedCheck->setChecked(data->includeUnnamed);
}

void CGroupDlg::buildButtons() {
    newButton = named(new QPushButton(QDialog::tr("&New <"), this), "newButton");
    selectableCheck = named(new QCheckBox(QDialog::tr("Selectable"), this), "selectableCheck");
    selectableCheck->setChecked(data->selectable);
    unnamedCheck = named(new QCheckBox(QDialog::tr("Unnamed"), this), "unnamedCheck");
    removeButton = named(new QPushButton(QDialog::tr("&Remove <"), this), "removeButton");
    addButton = named(new QPushButton(QDialog::tr("&Add <"), this), "addButton");
    renameButton = named(new QPushButton(QDialog::tr("Rename"), this), "renameButton");
    reorderButton = named(new QPushButton(QDialog::tr("Re-&Order..."), this), "reorderButton");
    descriptionButton = named(new QPushButton(QDialog::tr("Description"), this), "descriptionButton");
    explodeButton = named(new QPushButton(QDialog::tr("Explode"), this), "explodeButton");
    selectableButton = named(new QPushButton(QDialog::tr("Selectable"), this), "selectableButton");
    for (QPushButton* const button : {descriptionButton, explodeButton, selectableButton})
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    messageLabel = named(new QLabel(this), "messageLabel");
    messageLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    okButton = named(new QPushButton(QDialog::tr("OK"), this), "okButton");
    cancelButton = named(new QPushButton(QDialog::tr("Cancel"), this), "cancelButton");
    helpButton = named(new QPushButton(QDialog::tr("Help"), this), "helpButton");
    for (QPushButton* const button : findChildren<QPushButton*>())
        button->setAutoDefault(false); // Enter in a field presses none of them
}

// The window leaves the table room for five rows only where the other controls are no higher than these.
void CGroupDlg::flatten() {
    for (QPushButton* const button : findChildren<QPushButton*>())
        button->setFixedHeight(kRowHeight);
    for (QLineEdit* const edit : {nameEdit, descriptionEdit})
        edit->setFixedHeight(kRowHeight);
    for (QCheckBox* const check : {highlightCheck, includeUnnamedCheck, selectableCheck, unnamedCheck})
        check->setFixedHeight(kRowHeight);
}

void CGroupDlg::layOut() {
    auto* const column = new QVBoxLayout(this);
    packRows(*column, 2);
    if (filterEdit)
        column->addWidget(filterEdit);
    column->addWidget(groupTable);
    column->addWidget(identificationBox());
    column->addWidget(createBox());
    column->addWidget(changeBox());
    auto* const messages = new QHBoxLayout;
    messages->addWidget(messageLabel, guided ? 1 : 0);
    messages->addStretch();
    column->addLayout(messages);
    column->addLayout(group_dialogs::centredRow({okButton, cancelButton, helpButton}));
}

QGroupBox* CGroupDlg::identificationBox() {
    auto* const box = new QGroupBox(QDialog::tr("Group Identification"), this);
    auto* const grid = new QGridLayout(box);
    packRows(*grid, 0);
    grid->addWidget(labelFor(nameEdit, QDialog::tr("Group name"), box), 0, 0);
    grid->addWidget(nameEdit, 0, 1, 1, 2);
    grid->addWidget(labelFor(descriptionEdit, QDialog::tr("Description"), box), 1, 0);
    grid->addWidget(descriptionEdit, 1, 1, 1, 2);
    grid->addWidget(findNameButton, 2, 0);
    auto* const checks = new QHBoxLayout;
    checks->addWidget(highlightCheck);
    checks->addWidget(includeUnnamedCheck);
    grid->addLayout(checks, 2, 1, 1, 2);
    return box;
}

QGroupBox* CGroupDlg::createBox() {
    auto* const box = new QGroupBox(QDialog::tr("Create Group"), this);
    auto* const row = new QHBoxLayout(box);
    packRows(*row, 0);
    row->addWidget(newButton);
    row->addWidget(selectableCheck);
    row->addWidget(unnamedCheck);
    return box;
}

QGroupBox* CGroupDlg::changeBox() {
    auto* const box = new QGroupBox(QDialog::tr("Change Group"), this);
    auto* const rows = new QVBoxLayout(box);
    packRows(*rows, 0);
    auto* const first = new QHBoxLayout;
    for (QPushButton* const button : {removeButton, addButton, renameButton, reorderButton})
        first->addWidget(button);
    auto* const second = new QHBoxLayout;
    for (QPushButton* const button : {descriptionButton, explodeButton, selectableButton})
        second->addWidget(button);
    rows->addLayout(first);
    rows->addLayout(second);
    return box;
}

// `helpButton` is connected to nothing: that is meant.
void CGroupDlg::connectControls() {
    connect(groupTable, &QTableWidget::itemSelectionChanged, this, &CGroupDlg::selectionChanged);
    connect(renameButton, &QPushButton::clicked, this, &CGroupDlg::rename);
    connect(descriptionButton, &QPushButton::clicked, this, &CGroupDlg::changeDescription);
    connect(explodeButton, &QPushButton::clicked, this, &CGroupDlg::explode);
    connect(selectableButton, &QPushButton::clicked, this, &CGroupDlg::changeSelectable);
    connect(okButton, &QPushButton::clicked, this, [this] { done(kAccepted); });
    connect(cancelButton, &QPushButton::clicked, this, [this] { done(kCancelled); });
    connectChecks();
    connectWork();
}

void CGroupDlg::connectChecks() {
    connect(highlightCheck, &QCheckBox::clicked, this, &CGroupDlg::highlightChanged);
    connect(includeUnnamedCheck, &QCheckBox::clicked, this, &CGroupDlg::fillForIncludeUnnamed);
    connect(unnamedCheck, &QCheckBox::clicked, this, &CGroupDlg::unnamedChanged);
}

void CGroupDlg::connectWork() {
    connect(newButton, &QPushButton::clicked, this, &CGroupDlg::endForNew);
    connect(addButton, &QPushButton::clicked, this, [this] { endForWork(kAdd); });
    connect(removeButton, &QPushButton::clicked, this, [this] { endForWork(kRemove); });
    connect(reorderButton, &QPushButton::clicked, this, [this] { endForWork(kReorder); });
    connect(findNameButton, &QPushButton::clicked, this, [this] { endForWork(kFindName); });
}
