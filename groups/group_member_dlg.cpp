#include "groups/group_member_dlg.h"

#include "groups/dialog_parts.h"

#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using group_dialogs::named;

CGroupMemberDlg::CGroupMemberDlg(QWidget* parent, const QStringList& listedTexts)
    : QDialog(parent), texts(listedTexts), memberList(named(new QListWidget(this), "memberList")),
      okButton(named(new QPushButton(QDialog::tr("OK"), this), "okButton")) {
    group_dialogs::setUpWindow(*this, "CGroupMemberDlg", QDialog::tr("Group Member List"), 245, 135);
    memberList->setSelectionMode(QAbstractItemView::NoSelection);
    memberList->setAccessibleName(windowTitle());
    memberList->addItems(texts);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(memberList);
    column->addLayout(group_dialogs::centredRow({okButton}));
    connect(okButton, &QPushButton::clicked, this, &QDialog::accept);
}

#include "moc_group_member_dlg.cpp"
