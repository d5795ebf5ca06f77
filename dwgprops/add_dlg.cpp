// Two edits and two buttons in a column.
#include "dwgprops/add_dlg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

AddDlg::AddDlg(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("AddDlg"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("Add Custom Property"));
    resize(290, 180);
    build();
    layOut();
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    nameEdit->setFocus();
}

void AddDlg::build() {
    nameEdit = new QLineEdit(this);
    nameEdit->setObjectName(QStringLiteral("nameEdit"));
    valueEdit = new QLineEdit(this);
    valueEdit->setObjectName(QStringLiteral("valueEdit"));
    okButton = new QPushButton(tr("OK"), this);
    okButton->setObjectName(QStringLiteral("okButton"));
    cancelButton = new QPushButton(tr("Cancel"), this);
    cancelButton->setObjectName(QStringLiteral("cancelButton"));
}

void AddDlg::layOut() {
    auto* const column = new QVBoxLayout(this);
    const std::pair<QString, QLineEdit*> labelled[] = {{tr("Custom property name:"), nameEdit},
                                                       {tr("Value:"), valueEdit}};
    for (const auto& [text, edit] : labelled) {
        auto* const label = new QLabel(text, this);
        label->setBuddy(edit);
        column->addWidget(label);
        column->addWidget(edit);
    }
    column->addLayout(buttonRow());
}

QHBoxLayout* AddDlg::buttonRow() const {
    auto* const row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(okButton);
    row->addWidget(cancelButton);
    return row;
}

#include "moc_add_dlg.cpp"
