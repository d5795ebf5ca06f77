// The controls of the dialog "Order Group" and their places.
#include "groups/dialog_parts.h"
#include "groups/group_reorder_dlg.h"
#include "host/dialog_habits.h"
#include "host/help.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

using group_dialogs::named;

void CGroupReorderDlg::build() {
    groupTable = named(new QTableWidget(this), "groupTable");
    group_dialogs::setUpTable(*groupTable, {QDialog::tr("Group name")});
    groupTable->setFocusPolicy(hasHabit(DialogHabit::GuidedGroups) ? Qt::StrongFocus : Qt::NoFocus);
    groupTable->setAccessibleName(QDialog::tr("Group name"));
    groupTable->setTabKeyNavigation(false);
    descriptionLabel = named(new QLabel(QDialog::tr("None"), this), "descriptionLabel");
    descriptionLabel->setTextFormat(Qt::PlainText);
    buildEdits();
    buildButtons();
    messageLabel = named(new QLabel(this), "messageLabel");
}

void CGroupReorderDlg::buildEdits() {
    removeFromLabel =
        named(new QLabel(QDialog::tr("Remove from position (0 - %1):"), this), "removeFromLabel");
    removeFromEdit = named(new QLineEdit(this), "removeFromEdit");
    newPositionLabel =
        named(new QLabel(QDialog::tr("Enter new position number for the object (0 - %1):"), this),
              "newPositionLabel");
    newPositionEdit = named(new QLineEdit(this), "newPositionEdit");
    countLabel = named(new QLabel(QDialog::tr("Number of objects (less than %1):"), this), "countLabel");
    countEdit = named(new QLineEdit(this), "countEdit");
    for (QLineEdit* const edit : {removeFromEdit, newPositionEdit, countEdit})
        edit->setFixedWidth(80);
}

void CGroupReorderDlg::buildButtons() {
    reorderButton = named(new QPushButton(QDialog::tr("Re-Order"), this), "reorderButton");
    highlightButton = named(new QPushButton(QDialog::tr("Highlight"), this), "highlightButton");
    reverseButton = named(new QPushButton(QDialog::tr("Reverse Order"), this), "reverseButton");
    okButton = named(new QPushButton(QDialog::tr("OK"), this), "okButton");
    cancelButton = named(new QPushButton(QDialog::tr("Cancel"), this), "cancelButton");
    helpButton = named(new QPushButton(QDialog::tr("Help"), this), "helpButton");
}

void CGroupReorderDlg::layOut() {
    auto* const column = new QVBoxLayout(this);
    group_dialogs::tighten(*column);
    column->addWidget(groupTable);
    column->addWidget(descriptionBox());
    column->addWidget(editsBox());
    auto* const actions = new QHBoxLayout;
    for (QPushButton* const button : {reorderButton, highlightButton, reverseButton})
        actions->addWidget(button);
    column->addLayout(actions);
    column->addLayout(group_dialogs::centredRow({okButton, cancelButton, helpButton}));
    auto* const messages = new QHBoxLayout;
    messages->addWidget(messageLabel);
    messages->addStretch();
    column->addLayout(messages);
}

QGroupBox* CGroupReorderDlg::descriptionBox() {
    auto* const box = new QGroupBox(QDialog::tr("Description"), this);
    auto* const column = new QVBoxLayout(box);
    column->addWidget(descriptionLabel);
    return box;
}

QGroupBox* CGroupReorderDlg::editsBox() {
    auto* const box = new QGroupBox(this);
    auto* const column = new QVBoxLayout(box);
    group_dialogs::tighten(*column);
    column->addLayout(editRow(removeFromLabel, removeFromEdit));
    column->addLayout(editRow(newPositionLabel, newPositionEdit));
    column->addLayout(editRow(countLabel, countEdit));
    return box;
}

QHBoxLayout* CGroupReorderDlg::editRow(QLabel* label, QLineEdit* edit) {
    auto* const row = new QHBoxLayout;
    label->setBuddy(edit);
    label->setWordWrap(true); // the longest text is wider than the window has room for
    row->addWidget(label, 1);
    row->addStretch();
    row->addWidget(edit);
    return row;
}

// The Highlight button is connected twice: that is meant.
void CGroupReorderDlg::connectControls() {
    connect(groupTable, &QTableWidget::itemSelectionChanged, this, [this] { refreshOrderFields(true); });
    connect(reorderButton, &QPushButton::clicked, this, &CGroupReorderDlg::reorder);
    connect(highlightButton, &QPushButton::clicked, this, &CGroupReorderDlg::highlightMembers);
    connect(highlightButton, &QPushButton::clicked, this, &CGroupReorderDlg::highlightMembers);
    connect(reverseButton, &QPushButton::clicked, this, &CGroupReorderDlg::reverseOrder);
    connect(okButton, &QPushButton::clicked, this, [this] { done(kAccepted); });
    connect(cancelButton, &QPushButton::clicked, this, [this] { done(kCancelled); });
    connect(helpButton, &QPushButton::clicked, this, [] { showHelp(group_dialogs::helpTopic); });
}
