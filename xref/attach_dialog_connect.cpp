// What the controls of the attach dialog do.
#include "xref/attach_dialog.h"

#include "host/help.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

void hostInsertExternalReferenceDialog::connectSignals() {
    using Dialog = hostInsertExternalReferenceDialog;
    connect(nameCombo, QOverload<int>::of(&QComboBox::activated), this, [this] {
        if (nameCombo->count() == 0)
            return;
        name = nameCombo->currentText();
        refreshForName(name);
    });
    connect(browseButton, &QPushButton::clicked, this, &Dialog::onBrowse);
    connectChecks();
    connect(scaleXEdit, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!uniformScaleCheck->isChecked())
            return;
        scaleYEdit->setText(text);
        scaleZEdit->setText(text);
    });
    connect(pathTypeCombo, QOverload<int>::of(&QComboBox::activated), this, &Dialog::updatePathType);
    connectButtons();
}

void hostInsertExternalReferenceDialog::connectChecks() {
    using Dialog = hostInsertExternalReferenceDialog;
    connect(rotationOnScreenCheck, &QCheckBox::stateChanged, this,
            [this](int state) { angleEdit->setEnabled(state != Qt::Checked); });
    connect(scaleOnScreenCheck, &QCheckBox::stateChanged, this, [this](int state) {
        for (QLineEdit* edit : {scaleXEdit, scaleYEdit, scaleZEdit})
            edit->setEnabled(state == Qt::Unchecked);
    });
    connect(insertionOnScreenCheck, &QCheckBox::stateChanged, this, [this](int state) {
        for (QLineEdit* edit : {insertXEdit, insertYEdit, insertZEdit})
            edit->setEnabled(state == Qt::Unchecked);
    });
    connect(uniformScaleCheck, &QCheckBox::stateChanged, this, &Dialog::onUniformChanged);
}

void hostInsertExternalReferenceDialog::connectButtons() {
    using Dialog = hostInsertExternalReferenceDialog;
    connect(okButton, &QPushButton::clicked, this, &Dialog::onOK);
    connect(cancelButton, &QPushButton::clicked, this, &Dialog::reject);
    connect(helpButton, &QPushButton::clicked, this, [] { showHelp("IDH_xattach"); });
}

void hostInsertExternalReferenceDialog::setEnabledStates() {
    for (QLineEdit* edit : {scaleXEdit, scaleYEdit, scaleZEdit})
        edit->setEnabled(!scaleOnScreenCheck->isChecked());
    for (QLineEdit* edit : {insertXEdit, insertYEdit, insertZEdit})
        edit->setEnabled(!insertionOnScreenCheck->isChecked());
    angleEdit->setEnabled(!rotationOnScreenCheck->isChecked());
}
