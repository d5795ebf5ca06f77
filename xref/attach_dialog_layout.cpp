// Where the controls of the attach dialog stand.
#include "xref/attach_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

void hostInsertExternalReferenceDialog::layOut() {
    auto* const columns = new QHBoxLayout;
    columns->addLayout(leftColumn());
    columns->addLayout(middleColumn());
    columns->addLayout(rightColumn());
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(fileRow());
    rows->addLayout(columns);
    rows->addLayout(buttonRow());
}

QLayout* hostInsertExternalReferenceDialog::fileRow() const {
    auto* const labels = new QVBoxLayout;
    for (const QString& text : {tr("Name:"), tr("Found in:"), tr("Saved path:")})
        labels->addWidget(new QLabel(text));
    auto* const nameRow = new QHBoxLayout;
    nameRow->addWidget(nameCombo);
    nameRow->addWidget(browseButton);
    auto* const controls = new QVBoxLayout;
    controls->addLayout(nameRow);
    controls->addWidget(foundInEdit);
    controls->addWidget(savedPathEdit);
    auto* const row = new QHBoxLayout;
    row->addLayout(labels);
    row->addLayout(controls);
    return row;
}

QLayout* hostInsertExternalReferenceDialog::leftColumn() {
    auto* const preview = new QGroupBox(tr("Preview"), this);
    preview->setFixedSize(220, 250);
    (new QVBoxLayout(preview))->addWidget(previewLabel, 0, Qt::AlignCenter);
    auto* const types = new QGroupBox(tr("Reference Type"), this);
    types->setFixedWidth(220);
    auto* const radios = new QVBoxLayout(types);
    radios->addWidget(attachmentRadio);
    radios->addWidget(overlayRadio);
    auto* const column = new QVBoxLayout;
    column->addWidget(preview);
    column->addWidget(types);
    column->addStretch();
    return column;
}

QLayout* hostInsertExternalReferenceDialog::middleColumn() {
    auto* const scale = new QGroupBox(tr("Scale"), this);
    auto* const scaleRows = new QFormLayout(scale);
    scaleRows->addRow(scaleOnScreenCheck);
    scaleRows->addRow(tr("X:"), scaleXEdit);
    scaleRows->addRow(tr("Y:"), scaleYEdit);
    scaleRows->addRow(tr("Z:"), scaleZEdit);
    scaleRows->addRow(uniformScaleCheck);
    auto* const insertion = new QGroupBox(tr("Insertion Point"), this);
    auto* const insertionRows = new QFormLayout(insertion);
    insertionRows->addRow(insertionOnScreenCheck);
    insertionRows->addRow(tr("X:"), insertXEdit);
    insertionRows->addRow(tr("Y:"), insertYEdit);
    insertionRows->addRow(tr("Z:"), insertZEdit);
    auto* const column = new QVBoxLayout;
    column->addWidget(scale);
    column->addWidget(insertion);
    column->addStretch();
    return column;
}

QLayout* hostInsertExternalReferenceDialog::rightColumn() {
    auto* const pathType = new QGroupBox(tr("Path Type"), this);
    (new QVBoxLayout(pathType))->addWidget(pathTypeCombo);
    auto* const rotation = new QGroupBox(tr("Rotation"), this);
    auto* const rotationRows = new QFormLayout(rotation);
    rotationRows->addRow(rotationOnScreenCheck);
    rotationRows->addRow(tr("Angle:"), angleEdit);
    auto* const unit = new QGroupBox(tr("Block Unit"), this);
    auto* const unitRows = new QFormLayout(unit);
    unitRows->addRow(tr("Unit:"), unitEdit);
    unitRows->addRow(tr("Factor:"), factorEdit);
    auto* const column = new QVBoxLayout;
    column->addWidget(pathType);
    column->addWidget(rotation);
    column->addWidget(unit);
    column->addWidget(autoZoomCheck);
    column->addStretch();
    return column;
}

QLayout* hostInsertExternalReferenceDialog::buttonRow() const {
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(0, 10, 0, 0);
    row->addStretch();
    for (QPushButton* button : {okButton, cancelButton, helpButton})
        row->addWidget(button);
    return row;
}
